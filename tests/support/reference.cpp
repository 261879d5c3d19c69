#include "tests/support/reference.h"

#include <mpfr.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "tests/support/accuracy_exceptions.h"
#include "tests/support/layout.h"

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

/// Cosines and sines of all multiples of the n-th part of the circle.
class Circle {
 public:
  explicit Circle(int n) : n_(n) {
    for (int k = 0; k < n; ++k) {
      cosines_.push_back(cosine(k, static_cast<unsigned long>(n)));
      sines_.push_back(sine(k, static_cast<unsigned long>(n)));
    }
  }
  Wide cosine_of(int k) const { return cosines_[index(k)]; }
  Wide sine_of(int k) const { return sines_[index(k)]; }

 private:
  std::size_t index(int k) const { return static_cast<std::size_t>(k % n_); }

  int n_;
  std::vector<Wide> cosines_, sines_;
};

/// dst[k] = sum over n of src[n] * exp(sign * 2 pi i n k / N), complex in and out.
class ComplexFourier : public Definition {
 public:
  ComplexFourier(int length, int sign) : sign_(sign), circle_(length) {}

  // (c + i s)(a + i b): the real part is c a - s b, the imaginary part s a + c b.
  Wide entry(int out, int in) const override {
    const int angle = (out / 2) * (in / 2);
    const bool to_imaginary = out % 2 != 0, from_imaginary = in % 2 != 0;
    if (to_imaginary == from_imaginary) return circle_.cosine_of(angle);
    const Wide sine = sign_ * circle_.sine_of(angle);
    return to_imaginary ? sine : -sine;
  }

 private:
  int sign_;
  Circle circle_;
};

/// X(k) = sum over j of x(j) * exp(-2 pi i j k / N), k = 0 .. N/2, in a packed layout.
class RealToSpectrum : public Definition {
 public:
  RealToSpectrum(Layout layout, int length) : cells_(cells(layout, length)), circle_(length) {}

  Wide entry(int out, int in) const override {
    const Cell& cell = cells_[static_cast<std::size_t>(out)];
    if (cell.part == Part::zero) return 0;
    const int angle = cell.bin * in;
    return cell.part == Part::real ? circle_.cosine_of(angle) : -circle_.sine_of(angle);
  }

 private:
  std::vector<Cell> cells_;
  Circle circle_;
};

/// x(j) = sum over all N bins of X(k) * exp(2 pi i j k / N), X(N-k) being the conjugate of X(k): both
/// together give 2 (R(k) cos - I(k) sin).
class SpectrumToReal : public Definition {
 public:
  SpectrumToReal(Layout layout, int length)
      : length_(length), cells_(cells(layout, length)), circle_(length) {}

  Wide entry(int out, int in) const override {
    const Cell& cell = cells_[static_cast<std::size_t>(in)];
    if (cell.part == Part::zero) return 0;
    const int angle = cell.bin * out;
    return greatest(in) * (cell.part == Part::real ? circle_.cosine_of(angle) : -circle_.sine_of(angle));
  }
  double greatest(int in) const override {
    const Cell& cell = cells_[static_cast<std::size_t>(in)];
    if (cell.part == Part::zero) return 0;
    return cell.bin == 0 || 2 * cell.bin == length_ ? 1 : 2;
  }

 private:
  int length_;
  std::vector<Cell> cells_;
  Circle circle_;
};

/// dst[k] = sum over j of src[j] * (cos + sin)(2 pi j k / N).
class Hartley : public Definition {
 public:
  explicit Hartley(int length) : length_(length), circle_(length) {}

  Wide entry(int out, int in) const override {
    return circle_.cosine_of(out * in) + circle_.sine_of(out * in);
  }
  double greatest(int in) const override {
    double most = 0;
    for (int out = 0; out < length_; ++out)
      most = std::max(most, std::abs(static_cast<double>(entry(out, in))));
    return most;
  }

 private:
  int length_;
  Circle circle_;
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

Wide cosine(long num, unsigned long den) {
  Multiple value(200);
  mpfr_set_si(value, num, MPFR_RNDN);
  mpfr_cosu(value, value, den, MPFR_RNDN);
  return to_wide(value);
}

// sin x = cos(x - pi/2)
Wide sine(long num, unsigned long den) { return cosine(4 * num - static_cast<long>(den), 4 * den); }

std::unique_ptr<Definition> definition(const Kernel& kernel) {
  if (const RealFamily* const real = real_family(kernel)) {
    if (real->forward) return std::make_unique<RealToSpectrum>(real->layout, kernel.length);
    return std::make_unique<SpectrumToReal>(real->layout, kernel.length);
  }
  const std::string family = kernel.family;
  if (family == "DFTFwd_CToC") return std::make_unique<ComplexFourier>(kernel.length, -1);
  if (family == "DFTInv_CToC") return std::make_unique<ComplexFourier>(kernel.length, +1);
  if (family == "Hartley") return std::make_unique<Hartley>(kernel.length);
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

double magnitude(const Definition& definition, const Array& src) {
  double sum = 0;
  for (int in = 0; in < src.count(); ++in) sum += definition.greatest(in) * std::abs(src[in]);
  return sum;
}

double relative_bound(Precision precision) { return precision == Precision::binary32 ? 2e-7 : 2e-15; }

double common_bound(const Kernel& kernel) {
  const double bound = relative_bound(kernel.precision);
  if (kernel.precision == Precision::binary64) return bound;
  const auto reference = definition(kernel);
  double greatest = 0;
  for (int in = 0; in < kernel.read; ++in) greatest = std::max(greatest, reference->greatest(in));
  return bound * greatest;
}

double matrix_bound(const Kernel& kernel) {
  for (const AccuracyException& one : accuracy_exceptions) {
    if (std::string_view(kernel.family) == one.family && std::string_view(kernel.type) == one.type &&
        kernel.length == one.length) {
      return one.worst;
    }
  }
  return common_bound(kernel);
}

double factor(const Kernel& kernel, std::int32_t flag) {
  const bool root = flag == XFM_SCALE_BY_SQRT_N;
  if (!root && !carries_by_n(kernel.scaling, flag)) return 1;
  if (kernel.precision == Precision::binary32)
    return nearest_single(static_cast<unsigned long>(kernel.points), root);
  const double n = kernel.points;
  return 1.0 / (root ? std::sqrt(n) : n);
}

}  // namespace xfm::test
