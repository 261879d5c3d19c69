#include "tools/documentation.h"

namespace xfm {
namespace {

const char* const complex_text = R"(@DIRECTION@ complex DFT of length N, 2 to 64.

    @FORMULA@

Reads N complex elements of src, writes N complex elements of dst, in natural order.

| flag                  | factor s  |
|-----------------------|-----------|
| XFM_SCALE_FWD_BY_N    | @FWD@ |
| XFM_SCALE_INV_BY_N    | @INV@ |
| XFM_SCALE_BY_SQRT_N   | 1/sqrt(N) |
| XFM_SCALE_NONE        | 1         |

The last operation on every output is the multiplication by s, even if s is 1. Both arrays may have any alignment;
multiples of 16 are fastest, and the bits do not depend on it. src and dst may overlap in any way: all input is read
before the first output is written, and dst is never read.
@ERRORS@
Sources: Cooley and Tukey 1965; Good 1958; Rader 1968; Yavne 1968; Bluestein 1970.)";

const char* const forward_real_text =
    R"(Forward real DFT of length N, 2 to 64, in the @LAYOUT@ layout.

    X[k] = s * sum over j of src[j] * exp(-2 pi i j k / N),   j = 0 .. N-1,   k = 0 .. N/2

Reads N elements of src; writes the half spectrum, @ELEMENTS@ elements of dst:
@MAP@

| flag                  | factor s  |
|-----------------------|-----------|
| XFM_SCALE_FWD_BY_N    | 1/N       |
| XFM_SCALE_INV_BY_N    | 1         |
| XFM_SCALE_BY_SQRT_N   | 1/sqrt(N) |
| XFM_SCALE_NONE        | 1         |

@COMMON@
The last operation on every output is the multiplication by s, even if s is 1; the zeros of CCS are not multiplied.
There are two exceptions: in single precision an output that is itself a linear combination is multiplied in
binary64, before it is rounded; and a few outputs are subtracted from zero afterwards, to correct their sign.
The three layouts hold the same bits for the same input.
@ERRORS@
Sources: Sorensen, Jones, Heideman and Burrus 1987; Good 1958; Cooley and Tukey 1965; Rader 1968.)";

const char* const inverse_real_text =
    R"(Inverse real DFT of length N, 2 to 64, from the @LAYOUT@ layout.

    dst[j] = s * sum over k of X[k] * exp(+2 pi i j k / N),   j, k = 0 .. N-1,   X[N-k] = conj(X[k])

Writes N elements of dst; src holds the bins 0 .. N/2 in @ELEMENTS@ elements:
@MAP@

| flag                  | factor s  |
|-----------------------|-----------|
| XFM_SCALE_FWD_BY_N    | 1         |
| XFM_SCALE_INV_BY_N    | 1/N       |
| XFM_SCALE_BY_SQRT_N   | 1/sqrt(N) |
| XFM_SCALE_NONE        | 1         |

@COMMON@
The last operation on every output is the multiplication by s, even if s is 1.
The three layouts give the same bits, except for the last bit at N = 7, 20, 40, 49 and 50.
@ERRORS@
Sources: those of the forward transforms, whose networks run transposed here (Bernstein 2006).)";

const char* const real_common =
    R"(Scalar code: the arrays may have any alignment. They may overlap in any way: all input is read before the first
output is written. In single precision sums are rounded to binary32, and linear combinations with constants are
evaluated in binary64 and rounded once.)";

const char* const hartley_text = R"(Hartley transform of length N, 2 to 64.

    dst[k] = s * sum over j of src[j] * (cos(2 pi j k / N) + sin(2 pi j k / N)),   j, k = 0 .. N-1

Reads N elements of src, writes N elements of dst, in natural order. The transform is its own inverse up to a
factor N, so the flags have no direction:

| flag                  | factor s  |
|-----------------------|-----------|
| XFM_SCALE_FWD_BY_N    | 1/N       |
| XFM_SCALE_INV_BY_N    | 1/N       |
| XFM_SCALE_BY_SQRT_N   | 1/sqrt(N) |
| XFM_SCALE_NONE        | 1         |

@COMMON@
The last operation on every output is the multiplication by s, even if s is 1.
@ERRORS@
Sources: Hartley 1942; Bracewell 1983; Sorensen, Jones, Burrus and Heideman 1985; Rader 1968.)";

const char* const errors =
    R"(Errors, in the order of the tests: xfmStsBadSize (unsupported length, generic functions only), xfmStsNullPtr (src
or dst is null), xfmStsBadScale (flag). A failed call writes nothing. Re-entrant; no allocation.)";

const char* const walsh_hadamard_text =
    R"(Walsh-Hadamard transform of N = 2^order real elements, order 1 to 13, in natural (Hadamard) order.

    dst[k] = s * sum over j of (-1)^popcount(j AND k) * src[j],   j, k = 0 .. N-1

Reads N elements of src, writes N elements of dst. The transform has no direction: it is its own inverse up to a
factor N, so both 1/N flags mean the same here. The number in a kernel's name is the order.

| flag                  | factor s  |
|-----------------------|-----------|
| XFM_SCALE_FWD_BY_N    | 1/N       |
| XFM_SCALE_INV_BY_N    | 1/N       |
| XFM_SCALE_BY_SQRT_N   | 1/sqrt(N) |
| XFM_SCALE_NONE        | 1         |

Stages run in ascending order, additions and subtractions are in the precision of the elements, and the last
operation on every output is the multiplication by s, even if s is 1: the bits are those of a plain loop nest over
strides 1, 2, 4, ...
1/sqrt(N) is a stored constant: a power of two at even orders. At odd orders it is the nearest value in binary32; in
binary64 it is 1 divided by the rounded root of N, which is one unit in the last place below the nearest value.

Both arrays may have any alignment; multiples of 16 are fastest, and the bits do not depend on it. src and dst may
overlap in any way: all input is read before the first output is written, and dst is never read.

buffer: ignored for the orders 1 to 7. From order 8 on it is work space of at least the size that
xfmWHTGetBufferSize_TYPE returns, aligned to 16. Its contents before the call do not matter, and are of no use
afterwards. It serves one call at a time. If buffer is null, each call does one xfmMalloc and one xfmFree; the bits
are the same.
Hazards: the call does not check the result of xfmMalloc, so a program that is out of memory crashes there. A buffer
that is not aligned to 16 may crash the program as well. A buffer that is too small is written past its end.

Errors, in the order of the tests: xfmStsBadSize (unsupported order, generic functions only), xfmStsNullPtr (src or
dst is null), xfmStsBadScale (flag). A failed call writes nothing and allocates nothing. Re-entrant.
Sources: Good 1958; Fino and Algazi 1976; for the cut into passes Johnson and Pueschel 2000.)";

const char* map_of(real::Layout layout, real::Direction direction) {
  switch (layout) {
    case real::Layout::ccs:
      return direction == real::Direction::forward ? "Re X[k] in dst[2k] and Im X[k] in dst[2k+1]; the "
                                                     "imaginary parts of bin 0 and, for even N, of "
                                                     "bin N/2\nare stored as +0, whatever the data."
                                                   : "Re X[k] in src[2k] and Im X[k] in src[2k+1]; the "
                                                     "imaginary parts of bin 0 and, for even N, of "
                                                     "bin N/2\nare never read.";
    case real::Layout::pack:
      return "Re X[0], Re X[1], Im X[1], Re X[2], Im X[2], ..., and, for even N, Re X[N/2] at the end.";
    default:
      return "for even N Re X[0], Re X[N/2], Re X[1], Im X[1], Re X[2], Im X[2], ...; for odd N as Pack.";
  }
}

std::string replaced(std::string text, const std::string& mark, const std::string& by) {
  return text.replace(text.find(mark), mark.size(), by);
}

}  // namespace

std::string documentation(dft::Direction direction) {
  const bool forward = direction == dft::Direction::forward;
  std::string text = replaced(complex_text, "@DIRECTION@", forward ? "Forward" : "Inverse");
  text = replaced(text, "@FORMULA@",
                  forward ? "dst[k] = s * sum over n of src[n] * exp(-2 pi i n k / N),   n, k = 0 .. N-1"
                          : "dst[n] = s * sum over k of src[k] * exp(+2 pi i n k / N),   n, k = 0 .. N-1");
  text = replaced(text, "@FWD@", forward ? "1/N      " : "1        ");
  text = replaced(text, "@ERRORS@", errors);
  return replaced(text, "@INV@", forward ? "1        " : "1/N      ");
}

std::string documentation(real::Direction direction, real::Layout layout) {
  const bool forward = direction == real::Direction::forward;
  std::string text = forward ? forward_real_text : inverse_real_text;
  text = replaced(text, "@LAYOUT@", real::name_of(layout));
  text = replaced(text, "@ELEMENTS@", layout == real::Layout::ccs ? "2*(N/2 + 1)" : "N");
  text = replaced(text, "@MAP@", map_of(layout, direction));
  text = replaced(text, "@COMMON@", real_common);
  return replaced(text, "@ERRORS@", errors);
}

std::string hartley_documentation() {
  return replaced(replaced(hartley_text, "@COMMON@", real_common), "@ERRORS@", errors);
}

std::string walsh_hadamard_documentation() { return walsh_hadamard_text; }

}  // namespace xfm
