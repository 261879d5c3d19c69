// Rader's algorithm for a prime N (Rader 1968) on real sequences. With g a primitive root and L = N-1 the
// inputs a[q] = x[g^q] and the outputs X[g^-p] are joined by a cyclic convolution. Since g^(L/2) = -1, the
// even bins of the spectrum of a make the real parts of the outputs and the odd bins the imaginary parts,
// each by a transform of length L/2 from bins to samples: a plain one and a skew one, both networks
// transposed.
#include "gen/math/rader_spectrum.h"

#include <string>

#include "gen/algorithms/real_transform.h"
#include "gen/algorithms/transposition.h"
#include "gen/math/number.h"

namespace xfm::gen::real {
namespace {

// A half-length network, run from bins to samples.
template <class Make>
Values from_bins(int length, Make make, const Points& bins) {
  Network network(1, Rounding::combination);
  Values inputs;
  for (int n = 0; n < length; ++n) inputs.push_back(network.load(n));
  const Points outputs = make(inputs);
  Transposition transposition(network);
  for (std::size_t k = 0; k < bins.size(); ++k) {
    transposition.send(outputs[k].p, {bins[k].p, {}});
    transposition.send(outputs[k].q, {bins[k].q, {}});
  }
  return halves(transposition.run(length), &Complex::p);
}

}  // namespace

Points rader(const Tree& plan, const Values& x) {
  const int g = plan.args[0].number, n = static_cast<int>(x.size()), l = n - 1, h = l / 2;
  const Tree &there = plan.args[1], &back = plan.args[2], &skew = plan.args.back();
  Values permuted;
  for (int q = 0; q < l; ++q) permuted.push_back(x[static_cast<std::size_t>(power_modulo(g, q, n))]);
  const Points a = transform(there, permuted);

  // B[r] of odd r is divided by i: the odd half is then a real network and yields the imaginary parts.
  const Constant by_l = constant("1/" + std::to_string(l), Wide(1) / Wide(l));
  Points even{{combination({{{"1", 1}, x[0]}, {-by_l, a[0].p}}), {}}}, odd;
  for (int r = 1; r <= h; ++r) {
    const ComplexConstant b = rader_spectrum(n, {g, 0}, r, r < h ? 2 : 1);
    const ComplexConstant w = r % 2 == 0 ? b : ComplexConstant{b.im, -b.re};
    const Complex& bin = a[static_cast<std::size_t>(r)];
    (r % 2 == 0 ? even : odd).push_back(combination({w.re * bin, w.im * times_i(bin)}));
  }
  const Values re = from_bins(
      h, [&](const Values& y) { return transform(back, y); }, even);
  const Values im = from_bins(
      h, [&](const Values& y) { return skew_transform(skew, y); }, odd);

  Spectrum out(n);
  out.put(0, {x[0] + a[0].p, {}});
  const int inverse = inverse_modulo(g, n);
  for (int p = 0; p < h; ++p) {
    const auto at = static_cast<std::size_t>(p);
    out.put(power_modulo(inverse, p, n), {re[at], im[at]});
  }
  return out.bins();
}

}  // namespace xfm::gen::real
