// FFTW's own functions beside those under test, which have the same names: from a library that keeps its
// names to itself.
#pragma once

#include <dlfcn.h>

#include <stdexcept>
#include <string>

#include "compat/fftw/precision.h"

namespace rival {

inline void* symbol(const char* name) {
  static void* const library = dlopen("lib" XFM_FFTW_NAME ".so.3", RTLD_NOW | RTLD_LOCAL | RTLD_DEEPBIND);
  void* const found = library != nullptr ? dlsym(library, name) : nullptr;
  if (found == nullptr) throw std::runtime_error(std::string("FFTW has no ") + name);
  return found;
}

}  // namespace rival

#define RIVAL_STRING_(x) #x
#define RIVAL_STRING(x) RIVAL_STRING_(x)
/// RIVAL(execute)(plan) is FFTW's own fftw_execute, or fftwf_execute.
#define RIVAL(name) (reinterpret_cast<decltype(&X(name))>(rival::symbol(RIVAL_STRING(X(name)))))
