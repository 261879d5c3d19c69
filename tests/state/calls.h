// Every function of libxfm and libxfmmany, called in all the ways that lead through different code.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "tests/state/probe.h"

namespace xfm::test {

/// What the group of a call ends with if other libraries were called, so that their stack is in the figure.
constexpr const char* outside = ", with other libraries";

struct ProbedCall {
  std::string name;   ///< of the function
  std::string group;  ///< family and type, "DFTFwd_CToC 32fc"; the function's name in the DCT-IV
  std::string how;    ///< "unaligned, flag 4"
  Start start;
  Finish finish;
  bool quiet;  ///< of ordinary data, so that it must not raise the forbidden bits
};
using Visit = std::function<void(const ProbedCall&)>;

void probe_kernels(const Visit& visit);
void probe_generic_functions(const Visit& visit);
void probe_dct4(const Visit& visit);
void probe_others(const Visit& visit);
void probe_batches(const Visit& visit);

/// What libxfm calls outside found the stack aligned, each time.
struct Callees {
  int calls, misaligned;
};
Callees callees();

}  // namespace xfm::test
