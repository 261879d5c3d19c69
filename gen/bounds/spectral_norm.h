// An upper bound on the spectral norm of a matrix.
#pragma once

#include "gen/math/sequence.h"

namespace xfm::gen {

/// Never less than the norm, up to roundings, and seldom much more; relatively right to 2^-31 for at most 128
/// columns.
double spectral_norm_bound(const Sequence<Sequence<double>>& rows);

}  // namespace xfm::gen
