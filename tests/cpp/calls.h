// The calls of the C++ header by the names of the C functions, through one signature.
#pragma once

#include <map>
#include <string>

#include "xfm.hpp"

namespace xfm::test {

/// The length is in the type.
using FixedCall = void (*)(const void* src, void* dst, scale factor);
/// The length, in elements of a transform's side that counts, is known at run time.
using SizedCall = status (*)(const void* src, void* dst, std::size_t length, scale factor);

struct Calls {
  FixedCall fixed;
  SizedCall sized;
};

/// "xfmDFTFwd_CToC_8_32fc" and all others.
const std::map<std::string, Calls>& calls();

}  // namespace xfm::test
