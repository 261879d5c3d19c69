#include "tests/golden/table.h"

#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

namespace xfm::test {
namespace {

std::string line(const Row& row) {
  std::string text;
  for (const std::string& cell : row) text += (text.empty() ? "" : "\t") + cell;
  return text + "\n";
}

Row cells(const std::string& line) {
  Row row;
  std::istringstream rest(line);
  for (std::string cell; std::getline(rest, cell, '\t');) row.push_back(cell);
  return row;
}

std::map<std::string, const Row*> by_name(const Table& table) {
  std::map<std::string, const Row*> rows;
  for (const Row& row : table) rows[row.front()] = &row;
  return rows;
}

}  // namespace

Table read_table(const std::string& path) {
  Table table;
  std::ifstream file(path);
  std::string text;
  std::getline(file, text);
  while (std::getline(file, text)) table.push_back(cells(text));
  return table;
}

void write_table(const std::string& path, const Row& headings, const Table& table) {
  std::ofstream file(path, std::ios::binary);
  file << line(headings);
  for (const Row& row : table) file << line(row);
  if (!file.flush()) throw std::runtime_error("cannot write " + path);
}

std::string difference(const Table& before, const Table& now) {
  const auto old_rows = by_name(before), new_rows = by_name(now);
  std::string text;
  for (const Row& row : before) {
    const auto found = new_rows.find(row.front());
    if (found != new_rows.end() && *found->second == row) continue;
    text += "-" + line(row);
    if (found != new_rows.end()) text += "+" + line(*found->second);
  }
  for (const Row& row : now) {
    if (!old_rows.contains(row.front())) text += "+" + line(row);
  }
  if (!text.empty() || before == now) return text;
  return "the same rows, but reordered or repeated\n";
}

}  // namespace xfm::test
