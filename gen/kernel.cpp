#include "gen/kernel.h"

#include "gen/packing/paired.h"
#include "gen/passes/passes.h"

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

Kernel paired(Kernel kernel, int times) {
  if (times == 0 || (kernel.type.complex && kernel.type.precision == Precision::binary32)) return kernel;
  InstructionCosts costs;
  if (kernel.type.precision == Precision::binary32) costs.upper_store = 6;
  Programs programs(Equality::bits);
  const auto read = [&](const Network& network) { return programs.read(network, kernel.type.precision); };
  const Program program = read(*kernel.network);
  kernel.network = lowered(*kernel.network, kernel.type.precision);
  for (int time = 0; time < times; ++time) kernel.network = paired(*kernel.network, costs);
  check_same(read(*kernel.network), kernel.name() + " in pairs", program, "that of single operations");
  return kernel;
}

}  // namespace xfm::gen
