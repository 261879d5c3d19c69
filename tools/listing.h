// Everything that is written from the list of families and is not a kernel.
#pragma once

#include <span>
#include <string>

#include "gen/kernel.h"

namespace xfm {

/// The public header, from its hand-written frame (which holds the line @FAMILIES@).
std::string public_header(const std::string& frame);

/// Linker version script: exactly the public functions.
std::string export_map();

/// The generic functions: length to kernel.
std::string generic_functions();

/// The row of a generated kernel.
gen::Row row_of(const gen::Kernel& kernel);

/// The tables behind catalogue.h.
std::string catalogue(std::span<const gen::Row> all);

}  // namespace xfm
