// Equality of arrays to the bit, except for what is left open.
#pragma once

#include "tests/support/array.h"

namespace xfm::test {

enum class Zeros {
  as_they_are,  ///< 0 and -0 differ
  alike,        ///< 0 and -0 are equal
};

/// Any NaN equals any other, since the compiler chooses which of two operands is returned. Reports the first
/// difference.
testing::AssertionResult same_values(const Array& got, const Array& expected, Zeros zeros);

}  // namespace xfm::test
