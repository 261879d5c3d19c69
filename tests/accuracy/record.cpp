#include "tests/accuracy/record.h"

#include <algorithm>

#include "tests/golden/table.h"

namespace xfm::test {

Record::Record(const std::string& path) {
  for (const Row& row : read_table(path)) {
    in_units_of_u_[row.at(0)] = {std::stod(row.at(1)), std::stod(row.at(2))};
    if (row.at(6) != "-") reached_.push_back({std::stod(row.at(6)), row.at(0)});
  }
  std::ranges::stable_sort(reached_, {}, &Reached::part);
}

Certified Record::certified(const std::string& name, catalogue::Precision precision) const {
  const double u = precision == catalogue::Precision::binary32 ? 0x1p-24 : 0x1p-53;
  const Certified& in_units = in_units_of_u_.at(name);
  return {in_units.norm * u, in_units.unit * u};
}

}  // namespace xfm::test
