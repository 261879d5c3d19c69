#include "tests/accuracy/errors.h"

#include <cmath>
#include <limits>

#include "tests/support/attempt.h"
#include "tests/support/layout.h"

namespace xfm::test {

Errors errors_of_matrix(const catalogue::Kernel& kernel, const Definition& definition) {
  Errors errors;
  double squares = 0;
  int columns = 0;
  for (int in = 0; in < kernel.read; ++in) {
    columns += definition.greatest(in) > 0 ? 1 : 0;
    Array unit(kernel.precision, kernel.read), dst(kernel.precision, kernel.written);
    unit.fill(0.0);
    unit.set(in, 1.0);
    dst.fill(Poison::quiet_nan);
    EXPECT_EQ(run(kernel, unit.data(), dst.data(), XFM_SCALE_NONE), xfmStsOk) << kernel.name;
    for (int out = 0; out < kernel.written; ++out) {
      auto error = std::abs(static_cast<double>(Wide{dst[out]} - definition.entry(out, in)));
      if (std::isnan(error)) error = std::numeric_limits<double>::infinity();
      squares += error * error;
      if (error <= errors.worst) continue;
      errors.worst = error;
      errors.worst_out = out;
      errors.worst_in = in;
    }
  }
  errors.rms = std::sqrt(squares / columns / scaled_outputs(kernel));
  return errors;
}

std::vector<Measured> measure_all() {
  std::vector<Measured> all;
  for (const catalogue::Kernel& kernel : catalogue::kernels())
    all.push_back({kernel, errors_of_matrix(kernel, *definition(kernel))});
  return all;
}

}  // namespace xfm::test
