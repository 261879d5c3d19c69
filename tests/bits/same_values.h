// Equality of arrays to the bit, but for what is left open.
#pragma once

#include "tests/support/array.h"

namespace xfm::test {

enum class Zeros {
  as_they_are,  ///< 0 and -0 are different
  alike,        ///< they are not
};

/// Any NaN equals any other: which one comes out of two is the compiler's choice. Tells the first difference.
testing::AssertionResult same_values(const Array& got, const Array& expected, Zeros zeros);

}  // namespace xfm::test
