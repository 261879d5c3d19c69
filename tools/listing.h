// Everything that is written from the list of families and is not a kernel.
#pragma once

#include <string>

#include "tools/families.h"

namespace xfm {

/// The public header, from its hand-written frame (which holds the line @FAMILIES@).
std::string public_header(const std::string& frame);

/// Linker version script: exactly the public functions.
std::string export_map();

/// The generic functions: length to kernel.
std::string generic_functions();

/// A row of the catalogue (catalogue.h explains the columns), of a generated or a hand-written kernel.
std::string catalogue_row(const Family& family, const gen::Kernel& kernel);
std::string catalogue_row(const Family& family, int length, const gen::ElementType& type,
                          const gen::Target& target);

/// The tables behind catalogue.h.
std::string catalogue(const std::string& rows);

}  // namespace xfm
