#include "tools/documentation.h"

namespace xfm {
namespace {

const char* const complex_text = R"(@DIRECTION@ complex DFT of length N, 2 to 64.

    @FORMULA@

Reads N complex elements of src, writes N complex elements of dst, in natural order.
@FACTOR@
Arrays at multiples of 16 bytes are fastest.

@ERRORS@
Sources: Cooley and Tukey 1965; Good 1958; Rader 1968; Yavne 1968; Bluestein 1970.)";

const char* const forward_real_text =
    R"(Forward real DFT of length N, 2 to 64, in the @LAYOUT@ layout.

    X[k] = s * sum over j of src[j] * exp(-2 pi i j k / N),   j = 0 .. N-1,   k = 0 .. N/2

Reads N elements of src; writes the half spectrum, @ELEMENTS@ elements of dst:
@MAP@

@FACTOR@
There are two exceptions: in single precision an output that is itself a linear combination is multiplied in
binary64, before it is rounded; and a few outputs are subtracted from zero afterwards, to correct their sign.
@ROUNDING@
The three layouts hold the same bits for the same input.

@ERRORS@
Sources: Sorensen, Jones, Heideman and Burrus 1987; Good 1958; Cooley and Tukey 1965; Rader 1968.)";

const char* const inverse_real_text =
    R"(Inverse real DFT of length N, 2 to 64, from the @LAYOUT@ layout.

    dst[j] = s * sum over k of X[k] * exp(+2 pi i j k / N),   j, k = 0 .. N-1,   X[N-k] = conj(X[k])

Writes N elements of dst; src holds the bins 0 .. N/2 in @ELEMENTS@ elements:
@MAP@

@FACTOR@
@ROUNDING@
The three layouts give the same bits, except for the last bit at N = 7, 20, 40, 49 and 50.

@ERRORS@
Sources: those of the forward transforms, whose networks run transposed here (Bernstein 2006).)";

const char* const hartley_text = R"(Hartley transform of length N, 2 to 64.

    dst[k] = s * sum over j of src[j] * (cos(2 pi j k / N) + sin(2 pi j k / N)),   j, k = 0 .. N-1

Reads N elements of src, writes N elements of dst, in natural order. The transform is its own inverse but for a
factor N, so it has no direction.
@FACTOR@
@ROUNDING@

@ERRORS@
Sources: Hartley 1942; Bracewell 1983; Sorensen, Jones, Burrus and Heideman 1985; Rader 1968.)";

const char* const walsh_hadamard_text =
    R"(Walsh-Hadamard transform of N = 2^order real elements, order 1 to 13, in natural (Hadamard) order.

    dst[k] = s * sum over j of (-1)^popcount(j AND k) * src[j],   j, k = 0 .. N-1

The number in a kernel's name is the order. Reads N elements of src, writes N elements of dst. The transform is its
own inverse but for a factor N, so it has no direction.
@FACTOR@
Stages run in ascending order, and additions and subtractions are in the precision of the elements: the bits are
those of a plain loop nest over the strides 1, 2, 4, ...
1/sqrt(N) is a stored constant: a power of two at even orders. At odd orders it is the nearest value in binary32; in
binary64 it is 1 divided by the rounded root of N, which is one unit in the last place below the nearest value.
Arrays at multiples of 16 bytes are fastest.

buffer: ignored for the orders 1 to 7. From order 8 on it is work space of at least the size that
xfmWHTGetBufferSize_TYPE returns, aligned to 16 bytes. What it contains does not matter, before or after the call.
It serves one call at a time. If buffer is null, each call does one xfmMalloc and one xfmFree, and the bits are the
same.
Hazards: the result of that xfmMalloc is not tested: when memory is exhausted, a null pointer is dereferenced. A
buffer that is not aligned to 16 bytes may crash the program as well. A buffer that is too small is written past its
end.

@ERRORS@
Sources: Good 1958; Fino and Algazi 1976; for the cut into passes Johnson and Pueschel 2000.)";

const char* const factor =
    R"(s is the factor that flag selects, see XFM_SCALE_NONE. The last operation on every output is the multiplication
by s, even if s is 1.)";

const char* const rounding =
    R"(In single precision sums are rounded to binary32, and linear combinations with constants are evaluated in binary64
and rounded once.)";

const char* const errors =
    R"(Errors, in the order of the tests: xfmStsBadSize (unsupported @SIZE@, generic functions only), xfmStsNullPtr (src
or dst is null), xfmStsBadScale (flag). A failed call writes nothing.)";

const char* map_of(real::Layout layout, real::Direction direction) {
  switch (layout) {
    case real::Layout::ccs:
      return direction == real::Direction::forward
                 ? "Re X[k] in dst[2k] and Im X[k] in dst[2k+1]; the "
                   "imaginary parts of bin 0 and, for even N, of "
                   "bin N/2\nare stored as +0, whatever the data, and are not multiplied by s."
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

/// With what all families say.
std::string completed(std::string text, const std::string& size = "length") {
  text = replaced(text, "@FACTOR@", factor);
  return replaced(replaced(text, "@ERRORS@", errors), "@SIZE@", size);
}

}  // namespace

std::string documentation(dft::Direction direction) {
  const bool forward = direction == dft::Direction::forward;
  const std::string text = replaced(completed(complex_text), "@DIRECTION@", forward ? "Forward" : "Inverse");
  return replaced(text, "@FORMULA@",
                  forward ? "dst[k] = s * sum over n of src[n] * exp(-2 pi i n k / N),   n, k = 0 .. N-1"
                          : "dst[n] = s * sum over k of src[k] * exp(+2 pi i n k / N),   n, k = 0 .. N-1");
}

std::string documentation(real::Direction direction, real::Layout layout) {
  const bool forward = direction == real::Direction::forward;
  std::string text = completed(forward ? forward_real_text : inverse_real_text);
  text = replaced(text, "@LAYOUT@", real::name_of(layout));
  text = replaced(text, "@ELEMENTS@", layout == real::Layout::ccs ? "2*(N/2 + 1)" : "N");
  text = replaced(text, "@MAP@", map_of(layout, direction));
  return replaced(text, "@ROUNDING@", rounding);
}

std::string hartley_documentation() { return replaced(completed(hartley_text), "@ROUNDING@", rounding); }

std::string walsh_hadamard_documentation() { return completed(walsh_hadamard_text, "order"); }

}  // namespace xfm
