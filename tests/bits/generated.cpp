#include "tests/bits/generated.h"

#include <set>
#include <stdexcept>

#include "tools/families.h"

namespace xfm::test {

std::vector<catalogue::Kernel> generated_kernels() {
  std::set<std::string> by_hand;
  for (const Family& family : families())
    if (family.by_hand()) by_hand.insert(family.name);
  std::vector<catalogue::Kernel> kernels;
  for (const catalogue::Kernel& kernel : catalogue::kernels())
    if (!by_hand.contains(kernel.family)) kernels.push_back(kernel);
  return kernels;
}

gen::Kernel generated(const catalogue::Kernel& kernel) {
  for (const Family& family : families()) {
    if (family.name != kernel.family || family.by_hand()) continue;
    for (const gen::ElementType& type : family.types) {
      if (type.suffix() == kernel.type) return family.make(kernel.length, type.precision, "");
    }
  }
  throw std::logic_error(std::string("no family makes ") + kernel.name);
}

}  // namespace xfm::test
