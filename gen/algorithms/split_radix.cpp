// Split radix (Yavne 1968; Duhamel and Hollmann 1984), decimation in frequency: the even outputs are the
// transform of half the length of the sums a_j = x_j + x_(j+N/2); the differences d_j feed two transforms of
// a quarter of the length,
//   X[4k+1] = DFT((d_j - i d_(j+N/4)) W_N^j),  X[4k+3] = DFT((d_j + i d_(j+N/4)) W_N^(3j)).
#include "gen/algorithms/blocks.h"

namespace xfm::gen {

Points split_radix(const Points& x, bool open) {
  if (x.size() == 1) return x;
  if (x.size() == 2) return open ? x : dft2(x);
  if (x.size() == 4 && !open) return dft4(x);
  const int n = x.size(), half = n / 2, quarter = n / 4;
  Points sums(half), first, third;
  for (int j = 0; j < quarter; ++j) {
    const auto w = [&](int power) { return root_of_unity(turn(power * j, n)); };
    sums[j] = x[j] + x[j + half];
    sums[j + quarter] = x[j + quarter] + x[j + quarter + half];
    const Complex difference = x[j] - x[j + half];
    const Complex turned = times_i(x[j + quarter] - x[j + quarter + half]);
    first.push_back(w(1) * (difference - turned));
    third.push_back(w(3) * (difference + turned));
  }
  Points out(n);
  const Points even = split_radix(sums, open), odd1 = split_radix(first), odd3 = split_radix(third);
  for (int k = 0; k < half; ++k) out[2 * k] = even[k];
  for (int k = 0; k < quarter; ++k) {
    out[4 * k + 1] = odd1[k];
    out[4 * k + 3] = odd3[k];
  }
  return out;
}

}  // namespace xfm::gen
