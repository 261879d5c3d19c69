// Tables in text files: a row a line, columns between tabulators, the first one names the row.
#pragma once

#include <string>
#include <vector>

namespace xfm::test {

using Row = std::vector<std::string>;
using Table = std::vector<Row>;

/// Without the line of headings. A file that is not there has no rows.
Table read_table(const std::string& path);
void write_table(const std::string& path, const Row& headings, const Table& table);

/// Rows that are gone or were different, marked "-", rows that are new or are different now, marked "+"; or a
/// line about their order, if that is all that differs. Empty for equal tables.
std::string difference(const Table& before, const Table& now);

}  // namespace xfm::test
