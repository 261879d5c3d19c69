// The kernels of this build as tables that programs can walk: tests and the bench are driven by them. They
// are generated from the list of families (families.h), like the public header and the export map.
#pragma once

#include <cstdint>
#include <span>

#include "xfm.h"

namespace xfm::catalogue {

enum class Precision { binary32, binary64 };

/// Which of the scale flags carry 1/N: the forward ones, the inverse ones, or both alike.
enum class Scaling { forward, inverse, symmetric };

/// Any fixed-length kernel, through one signature.
using Call = xfmStatus (*)(const void* src, void* dst, std::int32_t flag);

/// Any generic function, through one signature.
using GenericCall = xfmStatus (*)(const void* src, void* dst, std::int32_t length, std::int32_t flag);

/// Kernels and generic functions of families with a work buffer, called with it. Through the signatures above
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
  int length;        ///< transform length, or the order in families that count by it
  int points;        ///< the N of the factors
  int read;          ///< real scalars read from src
  int written;       ///< real scalars written to dst
  const char* tree;  ///< breakdown
  int adds;          ///< bound: real additions without the factor
  int mults;         ///< bound: real multiplications without the factor
  int buffer_bytes;  ///< work buffer
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

/// How a target's library computes a kernel. The bits are the same on all targets.
struct Form {
  int lanes;             ///< numbers in the widest register of its arithmetic; 1: no packed arithmetic at all
  bool straight;         ///< no loop and no call
  bool two_variants;     ///< an aligned and an unaligned one, as functions of their own
  int bodies;            ///< in the function itself: two if it holds both variants
  int exchanges;         ///< exact number of lane exchanges in a body, or -1 where it is not prescribed
  int add_instructions;  ///< additions and subtractions in a body as written
  int mult_instructions;  ///< multiplications in a body, including those by the factor
};

/// A target that this build has a library for.
struct Target {
  const char* name;             ///< "x86-64-v3"
  const char* library;          ///< the path of its libxfm
  const char* compile_flags;    ///< of its kernels
  std::span<const Form> forms;  ///< in the order of kernels()
};

std::span<const Kernel> kernels();
std::span<const Generic> generics();
/// The baseline first.
std::span<const Target> targets();

/// How the target computes the kernel; throws std::out_of_range if it is not in the catalogue.
const Form& form(const Target& target, const Kernel& kernel);

/// Whether this processor has the target's instructions. The loader judges, as when it chooses a library.
bool runs_here(const Target& target);

}  // namespace xfm::catalogue
