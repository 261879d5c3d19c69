#include "tests/bits/generated.h"

#include <map>
#include <set>
#include <stdexcept>
#include <string>

#include "tools/families.h"

namespace xfm::test {
namespace {

gen::Kernel make(const catalogue::Kernel& kernel) {
  for (const Family& family : families()) {
    if (family.name != kernel.family || family.by_hand()) continue;
    for (const gen::ElementType& type : family.types()) {
      if (type.suffix() == kernel.type) return family.make(kernel.length, type.precision);
    }
  }
  throw std::logic_error(std::string("no family makes ") + kernel.name);
}

std::vector<catalogue::Kernel> find_generated_kernels() {
  std::set<std::string> by_hand;
  for (const Family& family : families())
    if (family.by_hand()) by_hand.insert(family.name);
  std::vector<catalogue::Kernel> kernels;
  for (const catalogue::Kernel& kernel : catalogue::kernels())
    if (!by_hand.contains(kernel.family)) kernels.push_back(kernel);
  return kernels;
}

}  // namespace

const gen::Kernel& generated(const catalogue::Kernel& kernel) {
  static std::map<std::string, gen::Kernel> known;
  const auto found = known.find(kernel.name);
  return found != known.end() ? found->second : known.emplace(kernel.name, make(kernel)).first->second;
}

const std::vector<catalogue::Kernel>& generated_kernels() {
  static const std::vector<catalogue::Kernel> kernels = find_generated_kernels();
  return kernels;
}

}  // namespace xfm::test
