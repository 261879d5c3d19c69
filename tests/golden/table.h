// Tables in text files: a line a row, columns separated by tabs, the first one naming the row.
#pragma once

#include <string>
#include <vector>

namespace xfm::test {

using Row = std::vector<std::string>;
using Table = std::vector<Row>;

/// Without the line of headings. A missing file has no rows.
Table read_table(const std::string& path);
void write_table(const std::string& path, const Row& headings, const Table& table);

/// Lost and changed rows marked "-", new and changed rows marked "+"; or a line about the order, if nothing
/// else differs. Empty for equal tables.
std::string difference(const Table& before, const Table& now);

}  // namespace xfm::test
