// What the memory of a plan must hold, worked out independently: every allocation in its order, every field
// of every object in its place.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace xfm::test {

class ExpectedPlan {
 public:
  /// A plan of this length and element size in a block at this address.
  ExpectedPlan(std::int64_t length, int element, std::uint64_t block);

  struct Table {
    std::uint64_t address, bytes;
    std::int32_t radix, fold;  ///< of a split; the outer combine has its r, and a fold of 0
  };

  std::uint64_t start() const {
    return start_;
  }  ///< the top of the arena in an empty block: the place of the root
  std::uint64_t top() const { return top_; }  ///< when the plan is built
  int splits() const { return splits_; }
  const std::map<std::uint64_t, std::uint32_t>& words() const { return words_; }  ///< 32 bits at each address
  /// Addresses of the operations in the plan, by object and operation.
  const std::multimap<std::string, std::uint64_t>& operations() const { return operations_; }
  const std::vector<Table>& tables() const { return tables_; }
  /// Start and bytes of every work area.
  const std::map<std::uint64_t, std::uint64_t>& work_areas() const { return work_areas_; }

 private:
  struct List {
    std::vector<std::uint64_t> cells;
    std::vector<std::uint64_t> payloads;
  };
  class Record;

  std::uint64_t alloc(std::uint64_t bytes);
  std::uint64_t work();
  std::size_t list();
  void append(std::size_t list, std::uint64_t object);
  std::uint64_t head(std::size_t list) const { return lists_[list].cells.front(); }
  Record object(std::uint64_t address, const std::string& name, std::uint32_t size);
  void add_combine_side(std::size_t owner, std::size_t view);
  void add_fold_side(std::size_t owner, std::size_t view);
  void add_split(std::int32_t m, std::int32_t r_above, std::size_t owner, std::size_t view);
  void write_lists();

  std::int32_t n_, r_ = 0;
  int element_, lanes_;
  std::uint64_t arena_, start_ = 0, top_ = 0;
  int splits_ = 0;
  std::vector<List> lists_;
  std::map<std::uint64_t, std::uint32_t> words_;
  std::multimap<std::string, std::uint64_t> operations_;
  std::vector<Table> tables_;
  std::map<std::uint64_t, std::uint64_t> work_areas_;
};

}  // namespace xfm::test
