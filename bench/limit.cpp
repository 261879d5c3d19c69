#include "bench/limit.h"

#include <algorithm>

namespace xfm::bench {

namespace {

int lanes(const catalogue::Kernel& kernel) {
  if (!kernel.packed_math) return 1;
  return kernel.precision == catalogue::Precision::binary32 ? 4 : 2;
}

/// The lane exchanges if the kernel prescribes them; otherwise, in binary32, two shuffles split four complex
/// numbers into real and imaginary parts, and two join them again.
double shuffles(const catalogue::Kernel& kernel) {
  if (kernel.exchanges >= 0) return kernel.exchanges;
  return lanes(kernel) == 4 ? (kernel.read + kernel.written) / 4.0 : 0;
}

}  // namespace

double limit_in_cycles(const catalogue::Kernel& kernel) {
  constexpr double kCall = 7;
  const double width = lanes(kernel);
  const double additions = kernel.adds / width;
  const double values = std::min(kernel.read, kernel.written);     // not the zeros that a layout stores
  const double multiplications = (kernel.mults + values) / width;  // each output times the factor
  const double loads = kernel.read / width;
  const double stores = kernel.written / width;
  return std::max(
             {additions / 2, multiplications / 2, (additions + shuffles(kernel)) / 3, loads / 2, stores}) +
         kCall;
}

}  // namespace xfm::bench
