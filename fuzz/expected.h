// What a call must return and compute, by the header and by the interpreter.
#pragma once

#include <string>

#include "tests/support/array.h"
#include "tools/catalogue.h"

namespace xfm::fuzz {

/// The kernel that serves the length, or null.
const catalogue::Kernel* find_kernel(const char* family, const char* type, std::int32_t length);

/// The statuses in the order of their tests.
xfmStatus expected_status(bool served, bool any_null, std::int32_t flag);

/// The network as the interpreter runs it, for Walsh-Hadamard kernels the loop nest.
test::Array expected_output(const catalogue::Kernel& kernel, const test::Array& src, std::int32_t flag);

/// Ends the program unless the scalars at got are these, to the bit but for the sign and payload of a NaN.
void require_output(const void* got, const test::Array& expected, const std::string& call);

}  // namespace xfm::fuzz
