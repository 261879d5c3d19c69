// How much stack calls take: as much as docs/stack.md says at most, for each family and target. Kernels are
// measured by their code, and all calls by what they write. XFM_STACK_UPDATE=1 first raises the page's
// figures to what is measured: they hold for every compiler that it was done with.
#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "tests/binary/tools.h"
#include "tests/state/frames.h"
#include "tests/state/survey.h"
#include "tests/support/library.h"

namespace xfm::test {
namespace {

std::string group_of(const catalogue::Kernel& kernel) {
  return std::string(kernel.family) + " " + kernel.type;
}

const Most& by_code() {
  static const Most most = [] {
    Most found;
    const Disassembly code(library_file());
    Frames frames(code);
    for (const catalogue::Kernel& kernel : catalogue::kernels()) {
      const auto bytes = frames.of(kernel.name);
      EXPECT_TRUE(bytes.has_value()) << kernel.name << " goes to a computed address";
      raise(found, group_of(kernel), bytes.value_or(0));
    }
    return found;
  }();
  return most;
}

const Most& by_calls() { return survey().stack; }

/// The rows of the page, "| group | bytes | bytes | bytes |", with a column for each target of the heading.
class Page {
 public:
  Page() {
    std::ifstream file(XFM_STACK_DOCUMENT);
    for (std::string line; std::getline(file, line);) lines_.push_back(line);
    for (std::size_t k = 0; k < lines_.size(); ++k)
      if (lines_[k].starts_with("| group |")) heading_ = k;
    if (heading_ == 0) throw std::runtime_error("no table in " XFM_STACK_DOCUMENT);
  }

  bool has_target() const { return column() < cells(lines_[heading_]).size(); }

  /// The figure of this target; 0 if there is none.
  std::int64_t figure(const std::string& group) const {
    const auto all = rows();
    const auto row = all.find(group);
    if (row == all.end()) return 0;
    return std::stoll(cells(lines_[row->second]).at(column()));
  }

  void set_figure(const std::string& group, std::int64_t bytes) {
    const auto all = rows();
    auto row = all.find(group);
    std::vector<std::string> cell = {group};
    if (row != all.end()) cell = cells(lines_[row->second]);
    cell.resize(cells(lines_[heading_]).size(), "0");
    cell.at(column()) = std::to_string(bytes);
    const std::string line = fmt::format("| {} |", fmt::join(cell, " | "));
    if (row != all.end())
      lines_[row->second] = line;
    else
      lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(heading_ + 2 + all.size()), line);
  }

  void write() const {
    std::ofstream file(XFM_STACK_DOCUMENT);
    for (const std::string& line : lines_) file << line << '\n';
  }

 private:
  static std::vector<std::string> cells(const std::string& line) {
    std::vector<std::string> found;
    std::istringstream stream(line.substr(1));
    for (std::string cell; std::getline(stream, cell, '|');) {
      const auto first = cell.find_first_not_of(' ');
      if (first != std::string::npos)
        found.push_back(cell.substr(first, cell.find_last_not_of(' ') - first + 1));
    }
    return found;
  }

  /// That of the target; past the last if there is none.
  std::size_t column() const {
    const auto headings = cells(lines_[heading_]);
    const auto found = std::ranges::find(headings, target_under_test().name);
    return static_cast<std::size_t>(found - headings.begin());
  }

  std::map<std::string, std::size_t> rows() const {
    std::map<std::string, std::size_t> found;
    for (std::size_t k = heading_ + 2; k < lines_.size() && lines_[k].starts_with("|"); ++k)
      found.emplace(cells(lines_[k]).front(), k);
    return found;
  }

  std::vector<std::string> lines_;
  std::size_t heading_ = 0;
};

/// What is published: multiples of 64, and coarser ones where other libraries have a part in it.
std::int64_t rounded_up(const std::string& group, std::int64_t bytes) {
  const std::int64_t step = group.ends_with(outside) ? 1024 : 64;
  return (bytes + step - 1) / step * step;
}

TEST(Stack, IsWhatThePageSaysAtMost) {
  Page page;
  if (!page.has_target()) GTEST_SKIP() << "docs/stack.md has no column of this target";
  Most most = by_calls();
  for (const auto& [group, bytes] : by_code()) raise(most, group, bytes);
  if (std::getenv("XFM_STACK_UPDATE") != nullptr) {
    for (const auto& [group, bytes] : most)
      if (page.figure(group) < bytes) page.set_figure(group, rounded_up(group, bytes));
    page.write();
  }
  for (const auto& [group, bytes] : most) {
    const std::int64_t published = page.figure(group);
    if (published < bytes)
      ADD_FAILURE() << group << " takes " << bytes << " bytes of stack, docs/stack.md says " << published;
  }
}

// The code and what calls write are two ways to the same figure; a frame may have bytes that no call writes.
TEST(Stack, CallsWriteNoMoreThanTheCodeTakes) {
  for (const auto& [group, bytes] : by_code()) {
    EXPECT_LE(by_calls().at(group), bytes) << group;
    EXPECT_GT(2 * by_calls().at(group) + 128, bytes) << group;
  }
}

}  // namespace
}  // namespace xfm::test
