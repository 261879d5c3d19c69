// The passes that make a DCT-IV of a complex Fourier transform of half its length, as a program would have
// them that is compiled for the processor it runs on: z[n] = (x[2n] + i x[N-1-2n]) w[n] before, and of the
// transform Z y[2k] - i y[N-1-2k] = Z[k] w[k] after, with w[n] = exp(-i pi (8 n + 1) / (8 N)).
//
// Once as plain loops, which are left to the compiler, and once in registers. For the latter: an element and
// its mirror image take the same four places before and after a pass, so all of it can happen in dst;
// and their factors differ by a rotation that is the same for all, so half a table will do.
#pragma once

#include <vector>

namespace xfm::bench {

template <class Real>
struct TwistPasses {
  using Pass = void (*)(const Real* from, Real* to, int length, const Real* table);
  Pass before, after;
};

/// Both forms, compiled for one level of processors.
template <class Real>
struct Twist {
  TwistPasses<Real> loops, registers;
};

// twist.cpp is compiled once for each of these.
namespace x86_64 {
template <class Real>
Twist<Real> twist();
}
namespace x86_64_v3 {
template <class Real>
Twist<Real> twist();
}
namespace x86_64_v4 {
template <class Real>
Twist<Real> twist();
}

/// Those that this processor runs, the best one last.
template <class Real>
std::vector<Twist<Real>> twists();

/// The cosine and sine of 3 pi / (4 N), then the real and imaginary parts of w[n] for n < N / 2. The passes
/// in registers read half of them.
template <class Real>
std::vector<Real> twist_table(int length);

}  // namespace xfm::bench
