#include "bench/limit.h"

#include <algorithm>

namespace xfm::bench {

namespace {

/// The lane exchanges if the form prescribes them; otherwise, in binary32, two shuffles split as many complex
/// numbers as a register has lanes into real and imaginary parts, and two join them again.
double shuffles(const catalogue::Kernel& kernel, const catalogue::Form& form) {
  if (form.exchanges >= 0) return form.exchanges;
  const bool splits = form.lanes > 1 && kernel.precision == catalogue::Precision::binary32;
  return splits ? (kernel.read + kernel.written) / static_cast<double>(form.lanes) : 0;
}

}  // namespace

double limit_in_cycles(const catalogue::Kernel& kernel, const catalogue::Form& form) {
  constexpr double kCall = 7;
  const double width = form.lanes;
  const double additions = kernel.adds / width;
  const double values = std::min(kernel.read, kernel.written);     // not the zeros that a layout stores
  const double multiplications = (kernel.mults + values) / width;  // each output times the factor
  const double loads = kernel.read / width;
  const double stores = kernel.written / width;
  return std::max({additions / 2, multiplications / 2, (additions + shuffles(kernel, form)) / 3, loads / 2,
                   stores}) +
         kCall;
}

}  // namespace xfm::bench
