// What a kernel could reach at best.
#pragma once

#include "tools/catalogue.h"

namespace xfm::bench {

/// Core cycles below which one call of a kernel with 128-bit instructions cannot come on a core that starts
/// two additions, two multiplications, two loads and one store a cycle, and three additions and shuffles
/// together:
///
///   max(additions / 2, multiplications / 2, (additions + shuffles) / 3, loads / 2, stores) + 7
///
/// where 7 is the call itself: entry tests, choice of the factor, return. Latency along dependency chains,
/// spills, conversions between formats and the transpositions inside a kernel are not in it, so some kernels
/// cannot reach it. The figures are those of a Zen 4; other cores differ in detail, and wider ones can come
/// below it.
double limit_in_cycles(const catalogue::Kernel& kernel);

}  // namespace xfm::bench
