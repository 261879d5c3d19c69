// Calls of the library from a processor state that is chosen, on a stack of its own, and what they leave
// behind.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace xfm::test {

/// What a call starts from.
struct Start {
  std::uint32_t mxcsr = 0x1F80;   ///< control and status of SSE: exceptions masked, rounding to nearest
  std::uint16_t control = 0x37F;  ///< of the x87 unit
  std::uint64_t junk = 0;         ///< in both halves of the vector registers
};

struct Finish {
  std::uint64_t result;
  std::size_t stack;                ///< bytes used, the return address and arguments on the stack included
  std::uint32_t raised;             ///< status bits of MXCSR that were not set at the start
  std::vector<std::string> damage;  ///< what the calling convention forbids
};

/// Arguments are integers and pointers.
Finish probe(const void* function, const std::vector<std::uint64_t>& arguments, const Start& start = {});

/// A signalling NaN in every binary64, or every binary32, of a register: an operation on a lane that the
/// function has not filled raises "invalid".
constexpr std::uint64_t nan_64 = 0x7FF0000000000001, nan_32 = 0x7FA000017FA00001;
/// Status bits that no function raises of ordinary data: invalid, division by zero, overflow.
constexpr std::uint32_t forbidden = 0x0D;

/// The greatest stack that a call may use here.
constexpr std::size_t probed_stack = std::size_t{1} << 17;

}  // namespace xfm::test
