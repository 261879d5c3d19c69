// A lower bound on the time of a kernel.
#pragma once

#include "tools/catalogue.h"

namespace xfm::bench {

/// The least core cycles that a call of a kernel of this form can take, with all lanes of its registers in
/// use, on a core that starts two additions, two multiplications, two loads and one store a cycle, and three
/// additions and shuffles together:
///
///   max(additions / 2, multiplications / 2, (additions + shuffles) / 3, loads / 2, stores) + 7
///
/// where 7 is the call itself: entry tests, choice of the factor, return. It leaves out latency along
/// dependency chains, spills, conversions between formats and the transpositions inside a kernel, so some
/// kernels cannot reach it. The figures are those of a Zen 4; other cores differ in detail, and wider ones
/// can go below it.
double limit_in_cycles(const catalogue::Kernel& kernel, const catalogue::Form& form);

}  // namespace xfm::bench
