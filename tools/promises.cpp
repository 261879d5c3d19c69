#include "tools/promises.h"

#include <algorithm>

namespace xfm {
namespace {

using gen::Equality;
using gen::Kernel;

struct Promise {
  const char *family, *as;
  Equality equality;
  bool parts_exchanged;     ///< real and imaginary parts, of the input and of the output
  std::vector<int> except;  ///< lengths that promise nothing
};

const std::vector<Promise>& promises() {
  static const std::vector<Promise> all = {
      {"DFTFwd_RToPack", "DFTFwd_RToCCS", Equality::bits, false, {}},
      {"DFTFwd_RToPerm", "DFTFwd_RToCCS", Equality::bits, false, {}},
      {"DFTInv_PackToR", "DFTInv_CCSToR", Equality::bits, false, {7, 20, 40, 49, 50}},
      {"DFTInv_PermToR", "DFTInv_CCSToR", Equality::bits, false, {7, 49}},
      {"DFTInv_CToC", "DFTFwd_CToC", Equality::values, true, {}},
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

void check_promises(const std::vector<Kernel>& kernels) {
  for (const Promise& promise : promises()) {
    for (const Kernel& kernel : kernels) {
      if (kernel.family != promise.family || std::ranges::count(promise.except, kernel.length) > 0) continue;
      for (const Kernel& other : kernels) {
        if (other.family == promise.as && other.length == kernel.length &&
            other.type.precision == kernel.type.precision)
          check(promise, kernel, other);
      }
    }
  }
}

}  // namespace xfm
