// The two precisions of the library.
#pragma once

#include "gen/math/constant.h"

namespace xfm::gen {

enum class Precision { binary32, binary64 };

/// The nearest number of the precision.
inline double rounded(Wide value, Precision precision) {
  return precision == Precision::binary32 ? static_cast<float>(value) : static_cast<double>(value);
}

}  // namespace xfm::gen
