#include "tests/support/reference.h"

#include <mpfr.h>

#include <bit>
#include <cmath>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "tests/support/accuracy_exceptions.h"

namespace xfm::test {
namespace {

using catalogue::Kernel;
using catalogue::Scaling;

class Multiple {
 public:
  explicit Multiple(mpfr_prec_t bits) { mpfr_init2(value_, bits); }
  ~Multiple() { mpfr_clear(value_); }
  Multiple(const Multiple&) = delete;
  Multiple& operator=(const Multiple&) = delete;
  operator mpfr_ptr() { return value_; }

 private:
  mpfr_t value_;
};

/// As a sum of three binary64 values, which hold more bits than binary128.
Wide to_wide(Multiple& value) {
  Wide sum = 0;
  for (int i = 0; i < 3; ++i) {
    const double part = mpfr_get_d(value, MPFR_RNDN);
    sum += Wide{part};
    mpfr_sub_d(value, value, part, MPFR_RNDN);
  }
  return sum;
}

/// cos(2 pi k / n); exact where the cosine is 0 or one.
Wide cosine(long k, unsigned long n) {
  Multiple value(200);
  mpfr_set_si(value, k, MPFR_RNDN);
  mpfr_cosu(value, value, n, MPFR_RNDN);
  return to_wide(value);
}

/// dst[k] = sum over n of src[n] * exp(sign * 2 pi i n k / N), complex in and out.
class ComplexFourier : public Definition {
 public:
  ComplexFourier(int length, int sign) : length_(length) {
    for (int k = 0; k < length; ++k) {
      const auto n = static_cast<unsigned long>(length);
      cosines_.push_back(cosine(k, n));
      sines_.push_back(Wide(sign) * cosine(4L * k - length, 4 * n));  // sin x = cos(x - pi/2)
    }
  }

  // (c + i s)(a + i b): the real part is c a - s b, the imaginary part s a + c b.
  Wide entry(int out, int in) const override {
    const auto angle = static_cast<std::size_t>((out / 2) * (in / 2) % length_);
    const bool to_imaginary = out % 2 != 0, from_imaginary = in % 2 != 0;
    if (to_imaginary == from_imaginary) return cosines_[angle];
    return to_imaginary ? sines_[angle] : -sines_[angle];
  }

 private:
  int length_;
  std::vector<Wide> cosines_, sines_;
};

/// dst[k] = sum over j of (-1)^popcount(j AND k) * src[j].
class Hadamard : public Definition {
 public:
  Wide entry(int out, int in) const override {
    return std::popcount(static_cast<unsigned>(out & in)) % 2 == 0 ? 1 : -1;
  }
};

/// 1/N, or 1/sqrt(N), by one correct rounding to binary32.
double nearest_single(unsigned long n, bool root) {
  Multiple value(24);
  if (root) {
    Multiple exact(64);
    mpfr_set_ui(exact, n, MPFR_RNDN);
    mpfr_rec_sqrt(value, exact, MPFR_RNDN);
  } else {
    mpfr_set_ui(value, 1, MPFR_RNDN);
    mpfr_div_ui(value, value, n, MPFR_RNDN);
  }
  return mpfr_get_d(value, MPFR_RNDN);
}

bool carries_by_n(Scaling scaling, std::int32_t flag) {
  if (flag == XFM_SCALE_FWD_BY_N) return scaling != Scaling::inverse;
  if (flag == XFM_SCALE_INV_BY_N) return scaling != Scaling::forward;
  return false;
}

}  // namespace

std::unique_ptr<Definition> definition(const Kernel& kernel) {
  const std::string family = kernel.family;
  if (family == "DFTFwd_CToC") return std::make_unique<ComplexFourier>(kernel.length, -1);
  if (family == "DFTInv_CToC") return std::make_unique<ComplexFourier>(kernel.length, +1);
  if (family == "WHT") return std::make_unique<Hadamard>();
  throw std::logic_error("tests/support/reference.cpp has no definition of " + family);
}

std::vector<Wide> transform(const Definition& definition, const Array& src, int written) {
  std::vector<Wide> result;
  for (int out = 0; out < written; ++out) {
    Wide sum = 0;
    for (int in = 0; in < src.count(); ++in) sum += definition.entry(out, in) * Wide{src[in]};
    result.push_back(sum);
  }
  return result;
}

double matrix_bound(Precision precision) { return precision == Precision::single ? 2e-7 : 2e-15; }

double matrix_bound(const Kernel& kernel) {
  for (const AccuracyException& one : accuracy_exceptions) {
    if (std::string_view(kernel.family) == one.family && std::string_view(kernel.type) == one.type &&
        kernel.length == one.length) {
      return one.worst;
    }
  }
  return matrix_bound(kernel.precision);
}

double factor(const Kernel& kernel, std::int32_t flag) {
  const bool root = flag == XFM_SCALE_BY_SQRT_N;
  if (!root && !carries_by_n(kernel.scaling, flag)) return 1;
  if (kernel.precision == Precision::single)
    return nearest_single(static_cast<unsigned long>(kernel.points), root);
  const double n = kernel.points;
  return 1.0 / (root ? std::sqrt(n) : n);
}

}  // namespace xfm::test
