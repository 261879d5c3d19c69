#include "gen/kernel.h"

namespace xfm::gen {

Kernel make_kernel(Design design) {
  const Kernel& kernel = design.kernel;
  check_memory(*kernel.network, kernel.read, kernel.written, kernel.name(), design.unread);
  check_definition(*kernel.network, design.definition, kernel.read, kernel.written, kernel.name());
  if (design.by_row) check_counts(count(*kernel.network), kernel.adds, kernel.mults, kernel.name());
  if (design.by_row && design.other_form != nullptr) {
    Programs programs(Equality::values);
    const auto read = [&](const Network& network) { return programs.read(network, kernel.type.precision); };
    check_same(read(*kernel.network), kernel.name(), read(*design.other_form), "its other form");
  }
  return std::move(design.kernel);
}

}  // namespace xfm::gen
