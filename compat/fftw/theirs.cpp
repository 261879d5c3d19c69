#include "theirs.h"

#include <dlfcn.h>

#include <atomic>
#include <cstdio>

namespace {

#define XFM_FFTW_STRING_(x) #x
#define XFM_FFTW_STRING(x) XFM_FFTW_STRING_(x)
#define XFM_FFTW_SYMBOL(name) XFM_FFTW_STRING(X(name))

constexpr char kLibrary[] = "lib" XFM_FFTW_NAME ".so.3";
constexpr char kThreads[] = "lib" XFM_FFTW_NAME "_threads.so.3";

std::atomic<bool> loaded = false;

void complain(const char* file, const char* reason) {
  std::fprintf(stderr,
               "xfm-" XFM_FFTW_NAME
               ": FFTW's own library %s is missing, so only what xfm serves is planned (%s)\n",
               file, reason);
}

/// A program that was linked with FFTW and runs under LD_PRELOAD has it behind this library already, maybe
/// with another one for threads. Otherwise the file is loaded. It would find itself where this library stands
/// in for that file.
void* loaded_library(const char* file, const char* symbol, void* ours) {
  if (dlsym(RTLD_NEXT, symbol) != nullptr) return RTLD_NEXT;
  void* const library = dlopen(file, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) {
    complain(file, dlerror());
    return nullptr;
  }
  if (dlsym(library, symbol) != ours) return library;
  complain(file, "its name leads to this library");
  return nullptr;
}

// To dlsym a null pointer means every library, this one too.
void* symbol_of(void* library, const char* name) {
  return library == nullptr ? nullptr : dlsym(library, name);
}

void* library() {
  static void* const found = [] {
    void* const handle =
        loaded_library(kLibrary, XFM_FFTW_SYMBOL(execute), reinterpret_cast<void*>(&X(execute)));
    loaded = handle != nullptr;
    return handle;
  }();
  return found;
}

template <class Function>
void find(Function*& function, void* library, const char* name) {
  function = reinterpret_cast<Function*>(symbol_of(library, name));
}

}  // namespace

const Theirs& theirs() {
  static const Theirs table = [] {
    Theirs found{};
#define FFTW(name) find(found.name, library(), XFM_FFTW_SYMBOL(name));
#define THREADS(name)
#include "their_names.def"
#undef THREADS
#undef FFTW
    return found;
  }();
  return table;
}

const Theirs& their_threads() {
  static const Theirs table = [] {
    Theirs found{};
    void* const threads =
        loaded_library(kThreads, XFM_FFTW_SYMBOL(init_threads), reinterpret_cast<void*>(&X(init_threads)));
#define FFTW(name)
#define THREADS(name) find(found.name, threads, XFM_FFTW_SYMBOL(name));
#include "their_names.def"
#undef THREADS
#undef FFTW
    return found;
  }();
  return table;
}

bool theirs_are_loaded() { return loaded; }
