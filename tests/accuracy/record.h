// The record of certified bounds, tests/bounds/bounds.tsv.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/accuracy/errors.h"

namespace xfm::test {

class Record {
 public:
  explicit Record(const std::string& path);

  /// Throws std::out_of_range if there is no row of this name.
  Certified certified(const std::string& name, catalogue::Precision precision) const;

  /// The part of its bound that an error was found to reach.
  struct Reached {
    double part;
    std::string name;
  };
  /// Of all kernels, the least part first.
  const std::vector<Reached>& reached() const { return reached_; }

 private:
  std::map<std::string, Certified> in_units_of_u_;
  std::vector<Reached> reached_;
};

}  // namespace xfm::test
