// FFTW's own library, found at run time.
#pragma once

#include "precision.h"

/// Its functions; null if there is no such library, or if it is too old to have the function.
struct Theirs {
#define FFTW(name) decltype(&X(name)) name;
#define THREADS(name) FFTW(name)
#include "their_names.def"
#undef THREADS
#undef FFTW
};

/// Loads the library with the first call; if there is none, that call says so on stderr.
const Theirs& theirs();

/// Its functions for threads are loaded apart, since few programs have their library.
const Theirs& their_threads();

/// The library has been loaded: something may have to be cleaned up in it.
bool theirs_are_loaded();
