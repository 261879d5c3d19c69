#include "tests/bits/nearest.h"

#include <mpfr.h>

#include <limits>
#include <map>
#include <utility>

namespace xfm::test {
namespace {

double rounded_cosine(long num, long den, int bits) {
  mpfr_t value;
  mpfr_init2(value, 64);
  mpfr_set_si(value, num, MPFR_RNDN);
  mpfr_t cosine;
  mpfr_init2(cosine, bits);
  mpfr_cosu(cosine, value, static_cast<unsigned long>(den), MPFR_RNDN);
  const double result = mpfr_get_d(cosine, MPFR_RNDN);
  mpfr_clears(value, cosine, static_cast<mpfr_ptr>(nullptr));
  return result;
}

}  // namespace

template <class T>
T cosine(long num, long den) {
  static std::map<std::pair<long, long>, T> known;
  const auto [place, fresh] = known.try_emplace({num, den});
  if (fresh) place->second = static_cast<T>(rounded_cosine(num, den, std::numeric_limits<T>::digits));
  return place->second;
}

template float cosine<float>(long, long);
template double cosine<double>(long, long);

}  // namespace xfm::test
