// The kernels of this build as a table that programs can walk: tests and the bench are driven by it. Both
// tables are generated from the list of families (families.h), like the public header and the export map.
#pragma once

#include <cstdint>
#include <span>

#include "xfm.h"

namespace xfm::catalogue {

enum class Precision { binary32, binary64 };

/// Which of the scale flags carry 1/N: the forward ones, the inverse ones, or both alike.
enum class Scaling { forward, inverse, symmetric };

/// Any fixed-length kernel, called through one shape.
using Call = xfmStatus (*)(const void* src, void* dst, std::int32_t flag);

/// Any generic function, called through one shape.
using GenericCall = xfmStatus (*)(const void* src, void* dst, std::int32_t length, std::int32_t flag);

/// Kernels and generic functions of families with a work buffer, called with it. Through the shapes above
/// they get a null buffer.
using BufferedCall = xfmStatus (*)(const void* src, void* dst, std::int32_t flag, void* buffer);
using BufferedGenericCall = xfmStatus (*)(const void* src, void* dst, std::int32_t length, std::int32_t flag,
                                          void* buffer);

struct Kernel {
  const char* name;    ///< exported name, "xfmDFTFwd_CToC_8_32fc"
  const char* family;  ///< "DFTFwd_CToC"
  const char* type;    ///< suffix of the element type, "32fc"
  Precision precision;
  Scaling scaling;
  int length;             ///< transform length, or the order of families that count by it
  int points;             ///< the N of the factors
  int read;               ///< real scalars read from src
  int written;            ///< real scalars written to dst
  int exchanges;          ///< lane exchanges that the body must hold exactly, or -1 where none are prescribed
  bool packed;            ///< vector body: has an aligned and an unaligned variant
  bool packed_math;       ///< false where the body must hold no packed arithmetic at all
  bool straight;          ///< no loop and no call
  const char* tree;       ///< breakdown
  int adds;               ///< bound: real additions without the factor
  int mults;              ///< bound: real multiplications without the factor
  int add_instructions;   ///< additions and subtractions in a body, as it is written
  int mult_instructions;  ///< multiplications in a body, the factor's among them
  int buffer_bytes;       ///< work buffer
  Call call;
  BufferedCall call_with_buffer;  ///< null where the family has none
};

struct Generic {
  const char* name;    ///< exported name, "xfmDFTFwd_CToC_32fc"
  const char* family;  ///< "DFTFwd_CToC"
  const char* type;
  int lowest;   ///< least accepted length
  int highest;  ///< greatest accepted length
  GenericCall call;
  BufferedGenericCall call_with_buffer;  ///< null where the family has none
};

std::span<const Kernel> kernels();
std::span<const Generic> generics();

}  // namespace xfm::catalogue
