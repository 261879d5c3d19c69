// The DCT-IV: an object that holds the tables of a length.
#include <cstdio>
#include <vector>

#include "xfm.hpp"

// Applied twice, the transform gives the input times N/2.
xfm::status there_and_back(std::vector<float>& samples) {
  xfm::dct4<float> transform(samples.size());
  if (!transform) return transform.outcome();
  for (int turn = 0; turn < 2; ++turn)
    if (const xfm::status done = transform(samples); done != xfm::status::ok) return done;
  for (float& value : samples) value *= 2 / static_cast<float>(samples.size());
  return xfm::status::ok;
}

int main() {
  std::vector<float> served = {1, 2, 3, 4}, unserved(33);
  const xfm::status of_4 = there_and_back(served), of_33 = there_and_back(unserved);
  std::printf("4 points: %s, %.3f\n", to_string(of_4), static_cast<double>(served[3]));
  std::printf("33 points: %s\n", to_string(of_33));
}
