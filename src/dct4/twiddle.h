// Twiddle sources and the tables that are filled from them. A source is a small object that holds the rule of
// an angle, so that the code that fills a table needs to know only its layout.
#pragma once

#include <cstdint>

#include "src/dct4/plan.h"

namespace xfm::dct4 {

/// The twist of class q and residue t, pi (2 q + 1) (2 t + 1) / (4 N): the value at (q, 2 t) is its cosine,
/// the value at (q, 2 t + 1) its sine.
struct CosSinSource {
  PlanObject head;
  std::int32_t step;       ///< 2 r
  std::int32_t full_turn;  ///< 8 N: the denominator of 2 pi
  std::int32_t classes;    ///< c
  std::int32_t radix;      ///< r
  std::int32_t row;        ///< 2 r
};

/// The same, by group of classes and the place in the group.
struct LaneSource {
  PlanObject head;
  std::int32_t step;    ///< 2 r
  std::int32_t groups;  ///< c / L
  PlanObject* source;   ///< CosSinSource
};

/// The unit angle of class i of a split, (i + 1/2) / m2 in units of pi: r2 / 2 times the angle of the class,
/// (2 i + 1) pi / m.
struct HalfStepSource {
  PlanObject head;
  std::int32_t fold;   ///< m
  std::int32_t radix;  ///< r2
};

static_assert(sizeof(CosSinSource) == 56 && sizeof(LaneSource) == 48 && sizeof(HalfStepSource) == 40);

// Each allocates its object; the fields are the caller's to fill.
template <class T>
CosSinSource* new_cos_sin_source(PlanArena* arena);
template <class T>
LaneSource* new_lane_source(PlanArena* arena);
template <class T>
HalfStepSource* new_half_step_source(PlanArena* arena);

/// The residues of a group in the order of the table, which is the order in which pairs of them are combined.
template <std::int32_t r>
struct ResidueOrder {
  std::int32_t of[r]{};

  constexpr ResidueOrder() {
    for (std::int32_t t = 0; t < r; ++t) of[t] = t % 2 == 0 ? t / 2 : r - 1 - t / 2;
  }
};
template <>
struct ResidueOrder<32> {
  std::int32_t of[32] = {0, 31, 16, 15, 4, 27, 20, 11, 8, 23, 24, 7, 12, 19, 28, 3,
                         1, 30, 17, 14, 5, 26, 21, 10, 9, 22, 25, 6, 13, 18, 29, 2};
};
template <std::int32_t r>
constexpr ResidueOrder<r> residue_order{};

/// Allocates and fills the table of a combine: for each group of L classes and each residue in the order
/// above, the cosines of the L twists and then their sines.
template <class T>
void make_table(CombineNode<T>& node);

/// Allocates and fills the table of an inner combine: pairs of a cosine and a sine, each repeated to fill a
/// group. The radix 8 has seven pairs per class, a = 1 .. 7. The radixes 16 and 32 have two parts: for each
/// class and each j = 0 .. r2 / 4 - 1 the multiples 1, 2, 3 of its angle plus j; then, for each class, the
/// multiples 4, 8, .. r2 - 4 of its angle.
template <class T>
void make_table(OddCombineNode<T>& node);

/// Pairs per class in the first part of an inner combine's table, and in the second.
constexpr std::int32_t near_pairs(std::int32_t r2) { return r2 <= 8 ? r2 - 1 : r2 / 4 * 3; }
constexpr std::int32_t far_pairs(std::int32_t r2) { return r2 <= 8 ? 0 : r2 / 4 - 1; }

/// Bytes of the tables, for allocation and release.
template <class T>
std::uint32_t table_bytes(const CombineNode<T>& node) {
  constexpr auto element = static_cast<std::uint32_t>(sizeof(T));
  return static_cast<std::uint32_t>(node.groups) * static_cast<std::uint32_t>(node.group_elements) * element;
}
template <class T>
std::uint32_t table_bytes(const OddCombineNode<T>& node) {
  return 2 * group_bytes * static_cast<std::uint32_t>(node.radix - 1) *
         static_cast<std::uint32_t>(node.classes);
}

}  // namespace xfm::dct4
