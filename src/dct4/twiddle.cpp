#include "src/dct4/twiddle.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace xfm::dct4 {
namespace {

constexpr double pi = 3.141592653589793;

template <class T>
struct CosSin {
  T cosine, sine;
};

// Of an angle in units of pi. It is rounded to the element's precision before its cosine and sine are taken
// in that precision, both by one call.
CosSin<float> cos_sin(float x) {
  CosSin<float> result;
  sincosf(static_cast<float>(static_cast<double>(x) * pi), &result.sine, &result.cosine);
  return result;
}
CosSin<double> cos_sin(double x) {
  CosSin<double> result;
  sincos(x * pi, &result.sine, &result.cosine);
  return result;
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
T twist_angle(const CosSinSource& source, std::int32_t q, std::int32_t t) {
  const std::int32_t odd_product = (2 * q + 1) * (2 * t + 1) * 2;
  return static_cast<T>(odd_product) / static_cast<T>(source.full_turn);
}

template <class T>
T cos_sin_value(const CosSinSource& source, std::int32_t i, std::int32_t j) {
  const std::int32_t index = i * source.step + j, half = index / 2;
  const CosSin<T> value = cos_sin(twist_angle<T>(source, half / source.radix, half % source.radix));
  return index % 2 == 0 ? value.cosine : value.sine;
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
    const CosSin<T> value = cos_sin(angle);
    std::fill_n(at_, group_size<T>, value.cosine);
    std::fill_n(at_ + group_size<T>, group_size<T>, value.sine);
    at_ += 2 * group_size<T>;
  }

 private:
  T* at_;
};

/// The smallest divisor of an odd number, except 1; of 1 itself 1.
constexpr std::int32_t smallest_divisor(std::int32_t odd) {
  for (std::int32_t divisor = 3; divisor * divisor <= odd; divisor += 2)
    if (odd % divisor == 0) return divisor;
  return odd;
}

/// The table of a combine, cosines and sines together, since one call gives both. A twist depends on the
/// product (2 q + 1) (2 t + 1) alone: a divisor of the second factor may go to the first, and the same twist
/// is found at a later class, if there is one. So the last classes come first.
template <class T>
class TwistWriter {
 public:
  TwistWriter(T* table, const LaneSource& lanes, std::span<const std::int32_t> order)
      : table_(table),
        source_(*reinterpret_cast<const CosSinSource*>(lanes.source)),
        order_(order),
        radix_(static_cast<std::int32_t>(order.size())),
        classes_(lanes.groups * l) {
    std::int32_t place[32];
    for (std::int32_t i = 0; i < radix_; ++i) place[order[static_cast<std::size_t>(i)]] = i;
    for (std::int32_t i = 0; i < radix_; ++i) {
      const std::int32_t odd = 2 * order[static_cast<std::size_t>(i)] + 1, divisor = smallest_divisor(odd);
      same_[i] = {divisor, place[(odd / divisor - 1) / 2]};
    }
  }

  void write() const {
    for (std::int32_t group = classes_ - l; group >= 0; group -= l)
      for (std::int32_t i = 0; i < radix_; ++i) write_group(group, i);
  }

 private:
  static constexpr std::int32_t l = group_size<T>;

  /// Where residue t has the same twists as another: class q those of class (divisor (2 q + 1) - 1) / 2.
  struct Same {
    std::int32_t divisor, place;
  };

  void write_group(std::int32_t group, std::int32_t place) const {
    const auto [divisor, other] = same_[place];
    const std::int32_t t = order_[static_cast<std::size_t>(place)];
    const std::int32_t reach = (1 << 23) / (2 * radix_ * static_cast<std::int32_t>(sizeof(T)));
    T* const pair = at(group, place);
    for (std::int32_t lane = 0; lane < l; ++lane) {
      const std::int32_t q = group + lane, later = (divisor * (2 * q + 1) - 1) / 2;
      CosSin<T> value;
      if (later >= group + l && later < classes_ && later - q < reach) {
        const T* const same = at(later, other);
        value = {same[0], same[l]};
      } else {
        value = cos_sin(twist_angle<T>(source_, q, t));
      }
      pair[lane] = value.cosine;
      pair[l + lane] = value.sine;
    }
  }
  T* at(std::int32_t q, std::int32_t place) const {
    return table_ + (std::ptrdiff_t{2 * radix_} * (q - q % l) + 2 * l * place + q % l);
  }

  T* table_;
  const CosSinSource& source_;
  std::span<const std::int32_t> order_;
  std::int32_t radix_, classes_;
  Same same_[32];
};

template <class T>
void fill(T* table, const LaneSource& lanes, std::span<const std::int32_t> order) {
  TwistWriter<T>(table, lanes, order).write();
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
