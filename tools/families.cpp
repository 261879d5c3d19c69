#include "tools/families.h"

#include "src/dft/recipe/dft.h"

namespace xfm {
namespace {

using gen::ElementType;
using gen::Precision;

const char* const complex_documentation = R"(@DIRECTION@ complex DFT of length N, 2 to 64.

    @FORMULA@

Reads N complex elements of src, writes N complex elements of dst, in natural order.

| flag                  | factor s  |
|-----------------------|-----------|
| XFM_SCALE_FWD_BY_N    | @FWD@ |
| XFM_SCALE_INV_BY_N    | @INV@ |
| XFM_SCALE_BY_SQRT_N   | 1/sqrt(N) |
| XFM_SCALE_NONE        | 1         |

Every output is multiplied by s as its last step, also by 1. Both arrays may have any alignment; multiples of 16 are
fastest, and the bits do not depend on it. src and dst may overlap in any way: all input is read before the first
output is written, and dst is never read.
Errors, in the order of the tests: a generic function gives xfmStsBadSize for a length that is not served; then
xfmStsNullPtr (src or dst is null), xfmStsBadScale (flag). A failed call writes nothing. Re-entrant; no allocation.
Sources: Cooley and Tukey 1965; Good 1958; Rader 1968; Yavne 1968; Bluestein 1970.)";

std::string replaced(std::string text, const std::string& mark, const std::string& by) {
  return text.replace(text.find(mark), mark.size(), by);
}

std::string document(dft::Direction direction) {
  const bool forward = direction == dft::Direction::forward;
  std::string text = replaced(complex_documentation, "@DIRECTION@", forward ? "Forward" : "Inverse");
  text = replaced(text, "@FORMULA@",
                  forward ? "dst[k] = s * sum over n of src[n] * exp(-2 pi i n k / N),   n, k = 0 .. N-1"
                          : "dst[n] = s * sum over k of src[k] * exp(+2 pi i n k / N),   n, k = 0 .. N-1");
  text = replaced(text, "@FWD@", forward ? "1/N      " : "1        ");
  return replaced(text, "@INV@", forward ? "1        " : "1/N      ");
}

Family complex_family(dft::Direction direction, const std::string& name) {
  return {.name = name,
          .types = {ElementType{Precision::single, true}, ElementType{Precision::twofold, true}},
          .lengths = dft::lengths(),
          .lowest = 2,
          .highest = 64,
          .vocabulary = "src/dft/vectors.h",
          .documentation = document(direction),
          .make = [direction](int length, Precision precision, const std::string& tree) {
            return dft::make_kernel(length, precision, direction, tree);
          }};
}

}  // namespace

const std::vector<Family>& families() {
  static const std::vector<Family> all = {
      complex_family(dft::Direction::forward, "DFTFwd_CToC"),
      complex_family(dft::Direction::inverse, "DFTInv_CToC"),
  };
  return all;
}

const std::vector<std::string>& plain_functions() {
  static const std::vector<std::string> all = {
      "xfmGetLibVersion",     "xfmDCT4GetSize_32f", "xfmDCT4Init_32f",    "xfmDCT4InitAlloc_32f",
      "xfmDCT4_32f",          "xfmDCT4Free_32f",    "xfmDCT4GetSize_64f", "xfmDCT4Init_64f",
      "xfmDCT4InitAlloc_64f", "xfmDCT4_64f",        "xfmDCT4Free_64f",
  };
  return all;
}

}  // namespace xfm
