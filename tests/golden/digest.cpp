#include "tests/golden/digest.h"

#include <bit>
#include <cstdio>
#include <cstring>
#include <random>
#include <stdexcept>
#include <vector>

namespace xfm::test {
namespace {

/// FNV-1a.
class Hash {
 public:
  template <class T>
  void add(const std::vector<T>& values) {
    std::vector<unsigned char> bytes(values.size() * sizeof(T));
    std::memcpy(bytes.data(), values.data(), bytes.size());
    for (const unsigned char byte : bytes) value_ = (value_ ^ byte) * 0x100000001b3;
  }
  std::string text() const {
    char digits[17];
    std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(value_));
    return digits;
  }

 private:
  std::uint64_t value_ = 0xcbf29ce484222325;
};

/// A number of magnitude 2^-7 to 2, assembled from bits: no arithmetic, no rounding.
template <class T>
T number(std::uint64_t word) {
  if constexpr (sizeof(T) == 4) {
    const auto exponent = static_cast<std::uint32_t>(120 + (word >> 40) % 8);
    return std::bit_cast<float>(static_cast<std::uint32_t>(word >> 63) << 31 | exponent << 23 |
                                static_cast<std::uint32_t>(word & 0x7fffff));
  } else {
    const std::uint64_t exponent = 1016 + (word >> 52) % 8;
    return std::bit_cast<double>((word >> 63) << 63 | exponent << 52 | (word & 0xfffffffffffff));
  }
}

/// Full vectors, enough to reveal a change of rounding in the shortest kernels, and one mostly of zeros of
/// either sign.
template <class T>
std::string digest_as(const catalogue::Kernel& kernel) {
  constexpr int full = 32;
  std::mt19937_64 words(1);
  std::vector<T> src(static_cast<std::size_t>(kernel.read)), dst(static_cast<std::size_t>(kernel.written));
  Hash hash;
  for (int vector = 0; vector <= full; ++vector) {
    for (T& v : src) {
      const std::uint64_t word = words();
      v = number<T>(word);
      if (vector == full && word / 16 % 4 != 0) v = v < 0 ? -T(0) : T(0);
    }
    for (const std::int32_t flag :
         {XFM_SCALE_FWD_BY_N, XFM_SCALE_INV_BY_N, XFM_SCALE_BY_SQRT_N, XFM_SCALE_NONE}) {
      if (kernel.call(src.data(), dst.data(), flag) != xfmStsOk)
        throw std::runtime_error(std::string(kernel.name) + " fails");
      hash.add(dst);
    }
  }
  return hash.text();
}

}  // namespace

std::string digest(const catalogue::Kernel& kernel) {
  return kernel.precision == catalogue::Precision::binary32 ? digest_as<float>(kernel)
                                                            : digest_as<double>(kernel);
}

}  // namespace xfm::test
