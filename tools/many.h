// Everything that is written for batches from the list of families.
#pragma once

#include <optional>
#include <string>

#include "gen/targets/target.h"
#include "tools/families.h"

namespace xfm {

/// The public header of batches, from its hand-written frame (which holds the line @FUNCTIONS@).
std::string header_of_batches(const std::string& frame);

/// Linker version script: exactly the public functions.
std::string export_map_of_batches();

/// Up to so many contiguous transforms one by one at every length, to compare them; else as the table says.
using Singles = std::optional<int>;

/// The public functions: a family's rows by length.
std::string functions_of_batches(const gen::Target& target, Singles singles);

/// The table behind many_catalogue.h.
std::string catalogue_of_batches();

/// One translation unit: the batch kernels of all families at a length. Kernels that are the same scalar
/// program share one body.
std::string batches_of_length(int length, const gen::Target& target, Singles singles);

/// Up to this length a batch that goes one by one has the kernel in a loop of its own: of the shortest a call
/// takes a good part of the time.
inline constexpr int longest_in_loop = 16;

}  // namespace xfm
