#include "tools/promises.h"

#include <algorithm>

#include "src/real/recipe/table.h"

namespace xfm {
namespace {

using gen::Equality;
using gen::Kernel;
using real::Layout;

struct Promise {
  const char *family, *as;
  Equality equality;
  bool parts_exchanged;  ///< real and imaginary parts, of the input and of the output
  /// Those of the two families: lengths at which one of them sums in an order of its own promise nothing.
  std::vector<real::Layout> layouts{};

  bool holds(int length) const {
    return std::ranges::none_of(real::block_orders(), [&](const real::BlockOrder& order) {
      return order.length == length && std::ranges::count(layouts, order.layout) > 0;
    });
  }
};

const std::vector<Promise>& promises() {
  static const std::vector<Promise> all = {
      {"DFTFwd_RToPack", "DFTFwd_RToCCS", Equality::bits, false},
      {"DFTFwd_RToPerm", "DFTFwd_RToCCS", Equality::bits, false},
      {"DFTInv_PackToR", "DFTInv_CCSToR", Equality::bits, false, {Layout::pack, Layout::ccs}},
      {"DFTInv_PermToR", "DFTInv_CCSToR", Equality::bits, false, {Layout::perm, Layout::ccs}},
      {"DFTInv_CToC", "DFTFwd_CToC", Equality::values, true},
  };
  return all;
}

gen::Numbering exchanged(const Kernel& kernel) {
  gen::PerLane places;
  for (int p = 0; p < kernel.read; ++p) places.push_back(p ^ 1);
  return {places, places};
}

void check(const Promise& promise, const Kernel& kernel, const Kernel& other) {
  gen::Programs programs(promise.equality);
  const gen::Program own = programs.read(*kernel.network, kernel.type.precision,
                                         promise.parts_exchanged ? exchanged(kernel) : kernel.numbering);
  check_same(own, kernel.name(), program_of(other, programs), other.name());
}

}  // namespace

gen::Program program_of(const Kernel& kernel, gen::Programs& programs) {
  return programs.read(*kernel.network, kernel.type.precision, kernel.numbering);
}

void check_against_baseline(const Kernel& kernel, const Kernel& of_baseline) {
  gen::Programs programs(Equality::bits);
  check_same(program_of(kernel, programs), kernel.name(), program_of(of_baseline, programs), "the baseline");
}

void check_promises(const std::vector<Kernel>& kernels) {
  for (const Promise& promise : promises()) {
    for (const Kernel& kernel : kernels) {
      if (kernel.family != promise.family || !promise.holds(kernel.length)) continue;
      for (const Kernel& other : kernels) {
        if (other.family == promise.as && other.length == kernel.length &&
            other.type.precision == kernel.type.precision)
          check(promise, kernel, other);
      }
    }
  }
}

}  // namespace xfm
