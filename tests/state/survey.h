// What all calls of all functions showed, made once for all tests of a program.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "tests/state/calls.h"

namespace xfm::test {

/// Bytes of stack by group of calls, "DFTFwd_CToC 32fc".
using Most = std::map<std::string, std::int64_t>;
void raise(Most& most, const std::string& group, std::int64_t bytes);

struct Survey {
  std::set<std::string> functions, batches;  ///< of libxfm and of libxfmmany
  std::vector<std::string> wrong;            ///< calls that left another state than they found, and how
  Most stack;
  Callees callees;
};
const Survey& survey();

}  // namespace xfm::test
