#include "tools/families.h"

#include "src/dft/recipe/dft.h"

namespace xfm {
namespace {

using gen::ElementType;
using gen::Precision;

Family complex_family(dft::Direction direction, const std::string& name, const std::string& documentation) {
  return {.name = name,
          .types = {ElementType{Precision::single, true}, ElementType{Precision::twofold, true}},
          .lengths = dft::lengths(),
          .lowest = 2,
          .highest = 64,
          .vocabulary = "src/dft/vectors.h",
          .documentation = documentation,
          .make = [direction](int length, Precision precision, const std::string& tree) {
            return dft::make_kernel(length, precision, direction, tree);
          }};
}

const char* const forward_complex = R"(Forward complex DFT of length N.

    dst[k] = s * sum over n of src[n] * exp(-2 pi i n k / N),   n, k = 0 .. N-1

Reads N complex elements of src, writes N complex elements of dst, in natural order.

| flag                  | factor s  |
|-----------------------|-----------|
| XFM_SCALE_FWD_BY_N    | 1/N       |
| XFM_SCALE_INV_BY_N    | 1         |
| XFM_SCALE_BY_SQRT_N   | 1/sqrt(N) |
| XFM_SCALE_NONE        | 1         |

Both arrays may have any alignment; multiples of 16 are fastest, and the bits do not depend on it. src and dst may
overlap in any way: all input is read before the first output is written.
Errors, in the order of the tests: the generic function xfmStsBadSize (length not served); then xfmStsNullPtr (src or
dst is null), xfmStsBadScale (flag). A failed call writes nothing. Re-entrant; no allocation.
Sources: Cooley and Tukey 1965; Good 1958; Rader 1968; Yavne 1968; Duhamel and Hollmann 1984.)";

}  // namespace

const std::vector<Family>& families() {
  static const std::vector<Family> all = {
      complex_family(dft::Direction::forward, "DFTFwd_CToC", forward_complex),
  };
  return all;
}

}  // namespace xfm
