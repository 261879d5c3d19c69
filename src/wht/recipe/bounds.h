// Certified bounds on the error of the family.
#pragma once

#include "gen/bounds/bounds.h"

namespace xfm::wht {

/// Of every output.
gen::Bound bound(int order, gen::Precision precision, gen::Factor factor);

}  // namespace xfm::wht
