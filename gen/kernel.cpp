#include "gen/kernel.h"

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

Kernel paired(Kernel kernel, int lanes, Pairing& pairing) {
  if (kernel.network->width() >= lanes) return kernel;
  const Precision precision = kernel.type.precision;
  Programs programs(Equality::bits);
  const Program program = programs.read(*kernel.network, precision);
  InstructionCosts costs;
  if (precision == Precision::binary32) costs.upper_store = 6;
  kernel.network = lowered(*kernel.network, precision);
  while (kernel.network->width() < lanes)
    kernel.network = pairing.run(*kernel.network, kernel.numbering, costs);
  check_same(programs.read(*kernel.network, precision), kernel.name() + " in pairs", program,
             "the single one");
  return kernel;
}

}  // namespace xfm::gen
