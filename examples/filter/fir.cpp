#include "fir.h"

#include <cmath>
#include <numbers>

namespace {

/// Tap t of the ideal low pass.
double ideal(double edge, int t) {
  const double x = 2 * std::numbers::pi * edge * t;
  return t == 0 ? 2 * edge : std::sin(x) / (std::numbers::pi * t);
}

}  // namespace

std::vector<float> band_pass(double low, double high, int taps) {
  std::vector<float> h;
  const int middle = (taps - 1) / 2;
  for (int t = -middle; t <= middle; ++t) {
    const double window = 0.54 + 0.46 * std::cos(std::numbers::pi * t / (middle + 1));
    h.push_back(static_cast<float>(window * (ideal(high, t) - ideal(low, t))));
  }
  return h;
}
