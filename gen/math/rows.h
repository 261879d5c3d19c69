// How to find a row of a table.
#pragma once

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <string>

namespace xfm::gen {

/// The first row that fits, or null.
template <class Table, class Fits>
auto find_row(const Table& table, Fits fits) {
  const auto found = std::find_if(std::begin(table), std::end(table), fits);
  return found == std::end(table) ? nullptr : &*found;
}

/// The row of a length; throws std::out_of_range if there is none.
template <class Table>
const auto& row_of(const Table& table, int length) {
  const auto* const found = find_row(table, [&](const auto& row) { return row.length == length; });
  if (found == nullptr) throw std::out_of_range("no row of length " + std::to_string(length));
  return *found;
}

}  // namespace xfm::gen
