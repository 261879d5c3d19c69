// The kernels of this build as a table that programs can walk: tests and the bench are driven by it. Both
// tables are generated from the list of families (families.h), like the public header and the export map.
#pragma once

#include <cstdint>
#include <span>

#include "xfm.h"

namespace xfm::catalogue {

enum class Precision { single, twofold };

/// Which of the scale flags carry 1/N: the forward ones, the inverse ones, or both alike.
enum class Scaling { forward, inverse, symmetric };

/// Any fixed-length kernel, called through one shape.
using Call = xfmStatus (*)(const void* src, void* dst, std::int32_t flag);

/// Any generic function, called through one shape.
using GenericCall = xfmStatus (*)(const void* src, void* dst, std::int32_t length, std::int32_t flag);

struct Kernel {
  const char* name;    ///< exported name, "xfmDFTFwd_CToC_8_32fc"
  const char* family;  ///< "DFTFwd_CToC"
  const char* type;    ///< suffix of the element type, "32fc"
  Precision precision;
  Scaling scaling;
  int length;             ///< transform length
  int read;               ///< real scalars read from src
  int written;            ///< real scalars written to dst
  int exchanges;          ///< lane exchanges that the body must hold exactly, or -1 where none are prescribed
  bool packed;            ///< vector body: has an aligned body and an unaligned twin
  bool packed_math;       ///< false where the body must hold no packed arithmetic at all
  const char* tree;       ///< breakdown
  int adds;               ///< bound: real additions without the factor
  int mults;              ///< bound: real multiplications without the factor
  int add_instructions;   ///< additions and subtractions in a body, as the generator wrote them
  int mult_instructions;  ///< multiplications in a body, the factor's among them
  Call call;
};

struct Generic {
  const char* name;    ///< exported name, "xfmDFTFwd_CToC_32fc"
  const char* family;  ///< "DFTFwd_CToC"
  const char* type;
  int lowest;   ///< least accepted length
  int highest;  ///< greatest accepted length
  GenericCall call;
};

std::span<const Kernel> kernels();
std::span<const Generic> generics();

}  // namespace xfm::catalogue
