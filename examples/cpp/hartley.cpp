// The Hartley transform is real, and its own inverse.
#include <array>
#include <cstdio>

#include "xfm.hpp"

std::array<double, 12> there_and_back(const std::array<double, 12>& samples) {
  std::array<double, 12> data;
  xfm::hartley<12>(samples, data, xfm::scale::by_sqrt_n);
  xfm::hartley<12>(data, data, xfm::scale::by_sqrt_n);
  return data;
}

int main() {
  for (const double value : there_and_back({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}))
    std::printf("%.0f ", value);
  std::puts("");
}
