// The transforms by their definitions, from MPFR. Nothing of the generator is used, so that its mistakes
// cannot hide here.
#pragma once

#include <memory>

#include "tests/support/array.h"

namespace xfm::test {

using Wide = __float128;

/// cos(2 pi num / den); exact where the cosine is 0 or 1.
Wide cosine(long num, unsigned long den);
/// sin(2 pi num / den), likewise.
Wide sine(long num, unsigned long den);

/// The definition of a family as a matrix of real scalars.
class Definition {
 public:
  virtual ~Definition() = default;
  /// The coefficient of real scalar `in` of src in real scalar `out` of dst, without a factor. The values 0,
  /// 1 and -1 are exact.
  virtual Wide entry(int out, int in) const = 0;
  /// The greatest magnitude that an entry of the column may have; 0 where src is not read.
  virtual double greatest(int /*in*/) const { return 1; }
};

/// Throws if the family has no definition here: each family adds its own.
std::unique_ptr<Definition> definition(const catalogue::Kernel& kernel);

/// The output by direct summation in binary128, without a factor.
std::vector<Wide> transform(const Definition& definition, const Array& src, int written);

/// The sum of the magnitudes of the inputs, each times the greatest of its column. No output is greater.
double magnitude(const Definition& definition, const Array& src);

/// 2e-7 in binary32, 2e-15 in binary64.
double relative_bound(Precision precision);
/// The bound on the error of an entry of a kernel's matrix, in binary32 relative to the greatest entry.
double common_bound(const catalogue::Kernel& kernel);
/// The same, except for the few kernels whose prescribed scheme rounds more: for those, the error they reach.
double matrix_bound(const catalogue::Kernel& kernel);

/// The stored factor that a flag selects. In binary32 the exact value rounded once; in binary64 the quotient
/// of 1.0 by N or by its rounded root.
double factor(const catalogue::Kernel& kernel, std::int32_t flag);

constexpr std::int32_t flags[] = {XFM_SCALE_FWD_BY_N, XFM_SCALE_INV_BY_N, XFM_SCALE_BY_SQRT_N,
                                  XFM_SCALE_NONE};

}  // namespace xfm::test
