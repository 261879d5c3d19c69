// Memory for calls whose every byte a sanitizer watches.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "tools/catalogue.h"

namespace xfm::sanitized {

[[noreturn]] inline void fail(const char* function, const char* what) {
  std::fprintf(stderr, "%s: %s\n", function, what);
  std::exit(1);
}
inline void require(bool condition, const char* function, const char* what) {
  if (!condition) fail(function, what);
}

/// Uninitialised scalars, which end where their heap block ends and start `offset` bytes behind its start.
class Scalars {
 public:
  Scalars(catalogue::Precision precision, std::int64_t count, int offset = 0)
      : size_(precision == catalogue::Precision::binary32 ? 4 : 8),
        count_(count),
        block_(static_cast<std::byte*>(std::malloc(bytes() + static_cast<std::size_t>(offset)))),
        offset_(offset) {
    if (block_ == nullptr) fail("malloc", "no memory");
  }
  ~Scalars() { std::free(block_); }
  Scalars(const Scalars&) = delete;
  Scalars& operator=(const Scalars&) = delete;

  std::byte* data() const { return block_ + offset_; }
  std::byte* at(std::int64_t index) const { return data() + index * size_; }
  std::int64_t count() const { return count_; }
  std::size_t bytes() const { return static_cast<std::size_t>(count_ * size_); }

  void set(std::int64_t index, double value) const {
    if (size_ == 4) {
      const auto single = static_cast<float>(value);
      std::memcpy(at(index), &single, sizeof single);
    } else {
      std::memcpy(at(index), &value, sizeof value);
    }
  }
  double get(std::int64_t index) const {
    if (size_ == 8) return *reinterpret_cast<const double*>(at(index));
    return *reinterpret_cast<const float*>(at(index));
  }

 private:
  std::int64_t size_, count_;
  std::byte* block_;
  int offset_;
};

/// The sample of an index, in -1 .. 1.
inline double sample(std::int64_t index) {
  return static_cast<double>((index * 7919 + 12345) % 20011 - 10005) / 10007;
}

/// Elements of the half spectrum that inverse kernels do not read.
inline bool is_unread(const catalogue::Kernel& kernel, std::int64_t index) {
  if (std::strcmp(kernel.family, "DFTInv_CCSToR") != 0) return false;
  return index == 1 || (kernel.length % 2 == 0 && index == kernel.length + 1);
}

inline bool is_finite(double value) { return value - value == 0; }

constexpr std::int32_t flags[] = {XFM_SCALE_FWD_BY_N, XFM_SCALE_INV_BY_N, XFM_SCALE_BY_SQRT_N,
                                  XFM_SCALE_NONE};

}  // namespace xfm::sanitized
