#include "tests/bits/generated.h"

#include <stdexcept>

#include "tools/families.h"

namespace xfm::test {

gen::Kernel generated(const catalogue::Kernel& kernel) {
  for (const Family& family : families()) {
    if (family.name != kernel.family) continue;
    for (const gen::ElementType& type : family.types) {
      if (type.suffix() == kernel.type) return family.make(kernel.length, type.precision, "");
    }
  }
  throw std::logic_error(std::string("no family makes ") + kernel.name);
}

}  // namespace xfm::test
