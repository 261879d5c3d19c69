#include "gen/math/rader_spectrum.h"

#include <fmt/format.h>

#include "gen/math/number.h"

namespace xfm::gen {

ComplexConstant rader_spectrum(int n, Root root, int r, int times) {
  const int m = n - 1, inverse = inverse_modulo(root.g, n);
  Wide re = 0, im = 0;
  for (int q = 0; q < m; ++q) {
    // exp(-2 pi i (g'^q/N + q r/M)) as one exact fraction of the circle
    const auto angle = turn(static_cast<long long>(power_modulo(inverse, q + root.shift, n)) * m +
                                static_cast<long long>(q) * r * n,
                            static_cast<long long>(n) * m);
    re += cosine(angle).value;
    im -= sine(angle).value;
  }
  const auto half = [&](const char* part, Wide value) -> Constant {
    if (wide_abs(value) < Wide(1e-25)) return {"0", 0};
    return constant(
        fmt::format("rader {} {} {} {} {}{}", n, root.g, root.shift, part, r, times == 1 ? "" : " doubled"),
        Wide(times) * value / Wide(m));
  };
  return {half("re", re), half("im", im)};
}

}  // namespace xfm::gen
