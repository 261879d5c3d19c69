#include "src/dct4/twiddle.h"

#include <cmath>
#include <span>

namespace xfm::dct4 {
namespace {

constexpr double pi = 3.141592653589793;

// The angle is rounded to the element's precision before its cosine and sine are taken in that precision.
template <class T>
T cos_pi(T x) {
  return std::cos(static_cast<T>(static_cast<double>(x) * pi));
}
template <class T>
T sin_pi(T x) {
  return std::sin(static_cast<T>(static_cast<double>(x) * pi));
}

template <class T>
using CosSinValue = T (*)(const CosSinSource&, std::int32_t, std::int32_t);
template <class T>
using LaneValue = T (*)(const LaneSource&, std::int32_t, std::int32_t, std::int32_t);
template <class T>
using HalfStepValue = T (*)(const HalfStepSource&, std::int32_t);

// The quotient is taken in the element's precision, of two numbers rounded to it; these roundings are part of
// the table.
template <class T>
T cos_sin_value(const CosSinSource& source, std::int32_t i, std::int32_t j) {
  const std::int32_t index = i * source.step + j, half = index / 2;
  const std::int32_t q = half / source.radix, t = half % source.radix;
  const std::int32_t odd_product = (2 * q + 1) * (2 * t + 1) * 2;
  const T x = static_cast<T>(odd_product) / static_cast<T>(source.full_turn);
  return index % 2 == 0 ? cos_pi(x) : sin_pi(x);
}

template <class T>
T lane_value(const LaneSource& source, std::int32_t group, std::int32_t lane, std::int32_t j) {
  const auto value = reinterpret_cast<CosSinValue<T>>(source.source->operation);
  return value(*reinterpret_cast<const CosSinSource*>(source.source), group_size<T> * group + lane, j);
}

template <class T>
T half_step_value(const HalfStepSource& source, std::int32_t i) {
  const std::int32_t inner_fold = source.fold / source.radix;
  return (static_cast<T>(i) + T(0.5)) / static_cast<T>(inner_fold);
}

void owns_nothing(PlanObject*) {}

template <class Source, class Value>
Source* new_source(PlanArena* arena, Value value) {
  return object_new<Source>(arena, owns_nothing, reinterpret_cast<PlanObject::Operation>(value));
}

/// A multiple of a unit angle: the product is rounded once more before the cosine.
template <class T>
T multiple(T unit, double factor) {
  return static_cast<T>(static_cast<double>(unit) * factor);
}

/// Writes pairs of groups, cosines and sines, each of one value repeated.
template <class T>
class PairWriter {
 public:
  explicit PairWriter(T* table) : at_(table) {}

  void write(T angle) {
    const T values[] = {cos_pi(angle), sin_pi(angle)};
    for (const T value : values)
      for (std::int32_t lane = 0; lane < group_size<T>; ++lane) *at_++ = value;
  }

 private:
  T* at_;
};

template <class T>
void fill(T* at, const LaneSource& source, std::span<const std::int32_t> order) {
  const auto value = reinterpret_cast<LaneValue<T>>(source.head.operation);
  for (std::int32_t group = 0; group < source.groups; ++group)
    for (const std::int32_t t : order)
      for (const std::int32_t j : {2 * t, 2 * t + 1})
        for (std::int32_t lane = 0; lane < group_size<T>; ++lane) *at++ = value(source, group, lane, j);
}

}  // namespace

template <class T>
CosSinSource* new_cos_sin_source(PlanArena* arena) {
  return new_source<CosSinSource>(arena, CosSinValue<T>{cos_sin_value<T>});
}
template <class T>
LaneSource* new_lane_source(PlanArena* arena) {
  return new_source<LaneSource>(arena, LaneValue<T>{lane_value<T>});
}
template <class T>
HalfStepSource* new_half_step_source(PlanArena* arena) {
  return new_source<HalfStepSource>(arena, HalfStepValue<T>{half_step_value<T>});
}

template <class T>
void make_table(CombineNode<T>& node) {
  node.table = static_cast<T*>(arena_alloc(node.head.arena, table_bytes(node)));
  const auto& source = *reinterpret_cast<const LaneSource*>(node.source);
  switch (node.radix) {
    case 1:
      return fill(node.table, source, residue_order<1>.of);
    case 2:
      return fill(node.table, source, residue_order<2>.of);
    case 4:
      return fill(node.table, source, residue_order<4>.of);
    case 8:
      return fill(node.table, source, residue_order<8>.of);
    case 16:
      return fill(node.table, source, residue_order<16>.of);
    default:
      return fill(node.table, source, residue_order<32>.of);
  }
}

template <class T>
void make_table(OddCombineNode<T>& node) {
  node.table = static_cast<T*>(arena_alloc(node.head.arena, table_bytes(node)));
  PairWriter<T> out(node.table);
  const auto& source = *reinterpret_cast<const HalfStepSource*>(node.source);
  const auto value = reinterpret_cast<HalfStepValue<T>>(source.head.operation);
  const double unit = 2.0 / node.radix;
  const bool two_parts = far_pairs(node.radix) > 0;
  const std::int32_t turns = two_parts ? node.radix / 4 : 1, multiples = two_parts ? 3 : node.radix - 1;
  for (std::int32_t i = 0; i < node.classes; ++i)
    for (std::int32_t j = 0; j < turns; ++j)
      for (std::int32_t b = 1; b <= multiples; ++b)
        out.write(multiple(value(source, i) + static_cast<T>(j), b * unit));
  for (std::int32_t i = 0; i < node.classes; ++i)
    for (std::int32_t a = 1; a <= far_pairs(node.radix); ++a)
      out.write(multiple(value(source, i), 4 * a * unit));
}

template CosSinSource* new_cos_sin_source<float>(PlanArena*);
template CosSinSource* new_cos_sin_source<double>(PlanArena*);
template LaneSource* new_lane_source<float>(PlanArena*);
template LaneSource* new_lane_source<double>(PlanArena*);
template HalfStepSource* new_half_step_source<float>(PlanArena*);
template HalfStepSource* new_half_step_source<double>(PlanArena*);
template void make_table(CombineNode<float>&);
template void make_table(CombineNode<double>&);
template void make_table(OddCombineNode<float>&);
template void make_table(OddCombineNode<double>&);

}  // namespace xfm::dct4
