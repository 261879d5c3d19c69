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

/// What the catalogue has of a kernel, as rows of its tables; catalogue.h explains the columns.
struct Listed {
  std::string kernel, form;

  Listed& operator+=(const Listed& more);
};
/// Of a generated or a hand-written kernel.
Listed listed(const Family& family, const gen::Kernel& kernel, const gen::Target& target);
Listed listed(const Family& family, int length, const gen::ElementType& type, const gen::Target& target);

/// The tables behind catalogue.h: those of the library, and that of the forms on a target.
std::string catalogue(const std::string& kernels);
std::string catalogue_of_forms(const gen::Target& target, const std::string& forms);

}  // namespace xfm
