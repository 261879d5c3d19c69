#include "tests/dct4/expected_plan.h"

#include <algorithm>
#include <bit>

namespace xfm::test {
namespace {

std::int32_t radix(std::int32_t v) {
  if (v >= 512 && v % 32 == 0) return 32;
  if (v >= 128 && v % 16 == 0) return 16;
  if (v >= 32 && v % 8 == 0) return 8;
  if (v >= 16 && v % 4 == 0) return 4;
  return 2;
}

/// 1 for `first`, 2 for its double, and so on.
std::int32_t kind_from(std::int32_t first, std::int32_t value) {
  return std::countr_zero(static_cast<std::uint32_t>(value)) -
         std::countr_zero(static_cast<std::uint32_t>(first)) + 1;
}
bool is_leaf(std::int32_t m) { return m <= 64; }

}  // namespace

/// Writes consecutive fields, each at a multiple of its width.
class ExpectedPlan::Record {
 public:
  Record(ExpectedPlan& plan, std::uint64_t address) : plan_(plan), at_(address) {}

  Record& number(std::int64_t value) {
    plan_.words_[at_] = static_cast<std::uint32_t>(value);
    at_ += 4;
    return *this;
  }
  template <class... Numbers>
  Record& numbers(Numbers... values) {
    (number(values), ...);
    return *this;
  }
  Record& pointer(std::uint64_t value) {
    at_ = (at_ + 7) / 8 * 8;
    return number(static_cast<std::int64_t>(value & 0xFFFFFFFF))
        .number(static_cast<std::int64_t>(value >> 32));
  }
  Record& operation(const std::string& name) {
    plan_.operations_.emplace(name, at_);
    at_ += 8;
    return *this;
  }

 private:
  ExpectedPlan& plan_;
  std::uint64_t at_;
};

ExpectedPlan::ExpectedPlan(std::int64_t length, int element, std::uint64_t block)
    : n_(static_cast<std::int32_t>(length)), element_(element), lanes_(16 / element), arena_(block) {
  std::int64_t low = static_cast<std::int64_t>(block & 0xFFFFFFFF);
  if (low >= std::int64_t{1} << 31) low -= std::int64_t{1} << 32;
  start_ = top_ = block + 64 - static_cast<std::uint64_t>(low % 32);

  const bool base = n_ <= 32 && std::has_single_bit(static_cast<std::uint32_t>(n_));
  const std::uint64_t root = alloc(80);
  const std::size_t combine_view = list(), fold_view = list(), owner = list();
  if (!base) {
    r_ = radix(n_ / 2);
    add_combine_side(owner, combine_view);
    add_fold_side(owner, fold_view);
  }
  object(root, "root", 80)
      .pointer(head(owner))
      .pointer(head(combine_view))
      .pointer(head(fold_view))
      .pointer(base ? 0 : work())
      .numbers(base ? kind_from(2, n_) : 6, r_, n_);
  write_lists();
}

std::uint64_t ExpectedPlan::alloc(std::uint64_t bytes) {
  const std::uint64_t address = top_;
  top_ += (bytes + 31) / 32 * 32;
  return address;
}

std::uint64_t ExpectedPlan::work() {
  const std::uint64_t bytes = static_cast<std::uint64_t>(n_) * static_cast<std::uint64_t>(element_);
  const std::uint64_t address = alloc(bytes);
  work_areas_[address] = bytes;
  return address;
}

std::size_t ExpectedPlan::list() {
  lists_.push_back({{alloc(24)}, {0}});
  return lists_.size() - 1;
}

void ExpectedPlan::append(std::size_t list, std::uint64_t object) {
  if (lists_[list].payloads.front() == 0) {
    lists_[list].payloads.front() = object;
  } else {
    const std::uint64_t cell = alloc(24);
    lists_[list].cells.push_back(cell);
    lists_[list].payloads.push_back(object);
  }
}

ExpectedPlan::Record ExpectedPlan::object(std::uint64_t address, const std::string& name,
                                          std::uint32_t size) {
  return Record(*this, address).operation(name + " destroy").pointer(size).operation(name).pointer(arena_);
}

void ExpectedPlan::add_combine_side(std::size_t owner, std::size_t view) {
  const std::int32_t c = n_ / 2 / r_, groups = c / lanes_, m = n_ / r_;
  const std::uint64_t shell = alloc(96), angles = alloc(56);
  append(owner, angles);
  const std::size_t shell_view = list(), shell_owner = list();
  append(owner, shell);
  append(view, shell);
  const std::uint64_t node = alloc(96), lane_source = alloc(48);
  append(shell_owner, lane_source);
  const std::size_t node_owner = list();
  append(shell_owner, node);
  append(shell_view, node);
  const std::uint64_t bytes = static_cast<std::uint64_t>(2 * c * r_ * element_), table = alloc(bytes);
  tables_.push_back({table, bytes, r_, 0});

  object(angles, "angles", 56).numbers(2 * r_, 8 * n_, c, r_, 2 * r_);
  object(lane_source, "lane source", 48).numbers(2 * r_, groups).pointer(angles);
  object(shell, "combine shell", 96)
      .pointer(head(shell_owner))
      .pointer(head(shell_view))
      .pointer(0)
      .numbers(1, r_, n_, 2 * r_, c, n_, 2 * n_ - 1, m)
      .pointer(angles);
  object(node, "combine node", 96)
      .pointer(head(node_owner))
      .pointer(table)
      .numbers(kind_from(1, r_), r_, n_, 2 * r_, 2 * r_ * lanes_, groups, n_, 2 * n_ - 1, m)
      .pointer(lane_source);
}

void ExpectedPlan::add_fold_side(std::size_t owner, std::size_t view) {
  const std::int32_t m = n_ / r_;
  const std::uint64_t shell = alloc(88);
  const std::size_t shell_view = list(), shell_owner = list();
  append(owner, shell);
  append(view, shell);
  const std::uint64_t node = alloc(88);
  const std::size_t node_view = list(), node_owner = list();
  append(shell_owner, node);
  append(shell_view, node);
  object(shell, "fold shell", 88)
      .pointer(head(shell_owner))
      .pointer(head(shell_view))
      .pointer(0)
      .numbers(1, m, n_, 2 * n_ - 1, 2 * r_, r_, n_, r_);
  object(node, "fold node", 88)
      .pointer(head(node_owner))
      .pointer(head(node_view))
      .pointer(0)
      .numbers(is_leaf(m) ? kind_from(2, m) : 7, m, n_, 2 * n_ - 1, 2 * r_, r_ / lanes_, n_, r_);
  if (!is_leaf(m)) add_split(m, r_, node_owner, node_view);
}

void ExpectedPlan::add_split(std::int32_t m, std::int32_t above, std::size_t owner, std::size_t view) {
  ++splits_;
  const std::int32_t r2 = radix(m / 2), m2 = m / r2, c2 = m / 2 / r2;
  const std::uint64_t split = alloc(96);
  const std::size_t combine_view = list(), fold_view = list(), split_owner = list();
  append(owner, split);
  append(view, split);

  const std::uint64_t combine = alloc(104), source = alloc(40);
  append(split_owner, source);
  const std::size_t combine_owner = list();
  append(split_owner, combine);
  append(combine_view, combine);
  const std::uint64_t bytes = static_cast<std::uint64_t>(32 * (r2 - 1) * c2), table = alloc(bytes);
  tables_.push_back({table, bytes, r2, m});
  object(source, "half steps", 40).numbers(m, r2);
  object(combine, "odd combine", 104)
      .pointer(head(combine_owner))
      .pointer(table)
      .numbers(kind_from(2, r2), r2, n_, above, 2 * above * r2, c2, n_, m / 2, m - 1, above, m2)
      .pointer(source);

  const std::uint64_t fold = alloc(96);
  const std::size_t inner_view = list(), inner_owner = list();
  append(split_owner, fold);
  append(fold_view, fold);
  object(fold, "odd fold", 96)
      .pointer(head(inner_owner))
      .pointer(head(inner_view))
      .pointer(0)
      .numbers(is_leaf(m2) ? kind_from(2, m2) : 7, m2, n_, n_, 2 * above * r2, 2 * above, r2, n_, above * r2,
               above);
  if (!is_leaf(m2)) add_split(m2, above * r2, inner_owner, inner_view);

  object(split, "split", 96)
      .pointer(head(split_owner))
      .pointer(head(combine_view))
      .pointer(head(fold_view))
      .pointer(work())
      .numbers(1, m, r2, n_, n_, 2 * above, n_, above);
}

void ExpectedPlan::write_lists() {
  for (const List& list : lists_) {
    for (std::size_t i = 0; i < list.cells.size(); ++i)
      Record(*this, list.cells[i])
          .pointer(list.payloads[i])
          .pointer(i + 1 < list.cells.size() ? list.cells[i + 1] : 0)
          .pointer(arena_);
  }
}

}  // namespace xfm::test
