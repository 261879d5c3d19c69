// How an order is cut into passes: the one table of the family, and what follows from a row.
#pragma once

#include <algorithm>
#include <cstdint>

namespace xfm::wht {

constexpr int lowest_order = 1, highest_order = 13;

/// The block pass does the low stages, `block` adjacent elements at a time. A column pass does the next ones,
/// between `middle` or `last` vectors, as many elements apart as the earlier passes have combined.
struct Passes {
  int block;                  ///< elements
  int middle = 1;             ///< radix; 1 if there is no such pass
  int last = 1;               ///< radix; 1 if one block is all
  bool one_function = false;  ///< the kernel holds its unaligned variant itself

  constexpr int length() const { return block * middle * last; }
  constexpr bool is_block() const { return last == 1; }
  constexpr bool has_staging() const { return middle > 1; }
  /// What the block pass and the middle pass work on at a time.
  constexpr int super_block() const { return block * middle; }

  // The work buffer, in elements: a copy of the vector, followed by a super-block where there is staging.
  constexpr int main_area() const { return is_block() ? 0 : length(); }
  constexpr int staging_area() const { return has_staging() ? super_block() : 0; }
  template <class T>
  constexpr std::uint32_t buffer_bytes() const {
    return static_cast<std::uint32_t>(main_area() + staging_area()) * static_cast<std::uint32_t>(sizeof(T));
  }
};

// By order, from 1 on. Each row is a choice of its own; no rule derives it.
constexpr Passes passes_32f[] = {
    {2},        {4},        {8},         {16},        {32},       {64},        {128},
    {32, 1, 8}, {64, 1, 8}, {64, 1, 16}, {64, 1, 32}, {64, 8, 8}, {64, 8, 16},
};
constexpr Passes passes_64f[] = {
    {2},        {4},         {8, 1, 1, true}, {16},       {32},        {64},        {128},
    {32, 1, 8}, {32, 1, 16}, {128, 1, 8},     {32, 8, 8}, {32, 8, 16}, {128, 8, 8},
};

template <class T>
constexpr const Passes& passes(int order) {
  return (sizeof(T) == sizeof(float) ? passes_32f : passes_64f)[order - lowest_order];
}

/// How many elements of a block are processed at once, out of the `lanes` of a register. Where unaligned data
/// are free, instructions have three operands as well: then the low stages work within a register, or a part
/// of one. Elsewhere registers are transposed, and blocks of fewer than four go element by element.
constexpr int lanes_in_use(int block, int lanes, bool unaligned_is_free) {
  if (unaligned_is_free) return block < 4 ? 1 : std::min(block, lanes);
  return block < 4 * lanes ? 1 : lanes;
}

constexpr bool rows_make_their_orders() {
  for (int order = lowest_order; order <= highest_order; ++order) {
    if (passes<float>(order).length() != 1 << order || passes<double>(order).length() != 1 << order)
      return false;
  }
  return true;
}
static_assert(rows_make_their_orders());

}  // namespace xfm::wht
