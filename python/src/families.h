// What the package computes: one row for each function of Python.
#pragma once

#include <cstdint>

#include <xfm.h>

enum class Precision { single, doubled };

/// What a function makes of its elements. A half spectrum is an array of complex numbers, bins 0 to N/2.
enum class Kind { complex_to_complex, real_to_half, half_to_real, real_to_real };

/// As the functions of xfm_many.h. `work` is what the family needs beside: nothing, a buffer, or Dct4Work.
using Batch = xfmStatus (*)(const void* src, std::int64_t src_stride, std::int64_t src_distance, void* dst,
                            std::int64_t dst_stride, std::int64_t dst_distance, std::int32_t length,
                            std::int64_t count, std::int32_t flag, void* work);

struct Family {
  const char* name;  ///< of the function in Python
  Kind kind;
  Batch batch[2];           ///< by precision
  std::int32_t by_norm[3];  ///< scale flags: backward, ortho, forward
  bool (*served)(std::int64_t length, Precision);
  const char* lengths;  ///< those that are served, in words
};

enum { FFT, IFFT, RFFT, IRFFT, HARTLEY, WHT, DCT4, FAMILIES };
extern const Family families[FAMILIES];

/// The order of a Walsh-Hadamard transform whose length is served.
std::int32_t wht_order(std::int64_t length);
