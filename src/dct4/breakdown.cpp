#include "src/dct4/breakdown.h"

#include <optional>

#include "src/dct4/arena.h"

namespace xfm::dct4 {
namespace {

/// A sum of bytes in 32 bits, or nothing where the length is refused. The sums of very long lengths wrap
/// around: a negative sum is refused, one that is positive again is not.
using Bytes = std::optional<std::uint32_t>;

Bytes sum(std::uint32_t a, std::uint32_t b) {
  const std::uint32_t total = a + b;
  return static_cast<std::int32_t>(total) < 0 ? Bytes{} : Bytes{total};
}
Bytes sum(Bytes a, std::uint32_t b) { return a ? sum(*a, b) : a; }
Bytes sum(Bytes a, Bytes b) { return b ? sum(a, *b) : b; }

// The bytes of the objects with their list heads and cells, all rounded. More cells are counted than a plan
// uses; callers can see the counts, so they stay as they are.
constexpr std::uint32_t cell = round32(sizeof(PlanList));
constexpr std::uint32_t base_plan = round32(80) + 3 * cell;
constexpr std::uint32_t combine_side = 448;
constexpr std::uint32_t fold_side_with_leaf = 384;
constexpr std::uint32_t fold_side_with_split = 448;
constexpr std::uint32_t split_node = 576;
constexpr std::uint32_t inner_leaf = 160;
constexpr std::uint32_t inner_split = 224;
constexpr std::uint32_t root_side = 416;
/// Aligning the caller's block.
constexpr std::uint32_t alignment_margin = 2 * round32(1);

/// Splitting a fold of length m: a table of (r - 1) pairs of groups for each class, and a work area of the
/// full length.
Bytes split_bytes(std::int32_t m, std::uint32_t work) {
  const std::int32_t r = radix_rule(m / 2);
  if (r == 0) return {};
  const std::int32_t classes = m / (2 * r), inner = m / r;
  const auto table = round32(2 * group_bytes * static_cast<std::uint32_t>((r - 1) * classes));
  const Bytes below = leaf_kind(inner) != 0 ? Bytes{inner_leaf} : sum(split_bytes(inner, work), inner_split);
  return sum(sum(sum(below, table), work), split_node);
}

template <class T>
Bytes plan_bytes(std::int32_t length) {
  if (base_kind(length) != 0) return base_plan;
  const std::int32_t r = radix_rule(length / 2);
  if (r == 0) return {};
  const std::int32_t m = length / r, classes = length / (2 * r);
  if (classes % group_size<T> != 0 || r % group_size<T> != 0) return {};
  const std::uint32_t element = sizeof(T);
  const std::uint32_t table = round32(2 * element * static_cast<std::uint32_t>(classes * r));
  const std::uint32_t work = round32(element * static_cast<std::uint32_t>(length));
  const Bytes fold =
      leaf_kind(m) != 0 ? Bytes{fold_side_with_leaf} : sum(split_bytes(m, work), fold_side_with_split);
  return sum(sum(sum(sum(table, combine_side), fold), work), root_side);
}

}  // namespace

std::int32_t radix_rule(std::int32_t value) {
  struct Entry {
    std::int32_t least, radix;
  };
  constexpr Entry cascade[] = {{512, 32}, {128, 16}, {32, 8}, {16, 4}, {4, 2}};
  for (const Entry& entry : cascade)
    if (value >= entry.least && value % entry.radix == 0) return entry.radix;
  return 0;
}

template <class T>
xfmStatus get_size(std::int32_t length, std::int32_t* size) {
  const Bytes plan = plan_bytes<T>(length);
  if (!plan) return xfmStsBadSize;
  *size = static_cast<std::int32_t>(*plan + alignment_margin);
  return xfmStsOk;
}

template xfmStatus get_size<float>(std::int32_t, std::int32_t*);
template xfmStatus get_size<double>(std::int32_t, std::int32_t*);

}  // namespace xfm::dct4
