// A hash of all bits of a kernel's outputs for fixed inputs.
#pragma once

#include <string>

#include "tools/catalogue.h"

namespace xfm::test {

/// In 16 hexadecimal digits.
std::string digest(const catalogue::Kernel& kernel);

}  // namespace xfm::test
