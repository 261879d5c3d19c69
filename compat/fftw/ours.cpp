#include "ours.h"

#include <dlfcn.h>

#include <cstdio>
#include <string>

namespace {

void* opened(const char* file) {
  void* const library = dlopen(file, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr)
    std::fprintf(stderr, "xfm-" XFM_FFTW_NAME ": xfm's library is missing, so FFTW computes (%s)\n",
                 dlerror());
  return library;
}

void* singles() {
  static void* const library = opened(XFM_FFTW_SINGLES);
  return library;
}
void* batches() {
  static void* const library = opened(XFM_FFTW_BATCHES);
  return library;
}

template <class Function>
Function function(void* library, const std::string& name) {
  void* const found = library == nullptr ? nullptr : dlsym(library, name.c_str());
  if (found == nullptr) throw OursMissing();
  return reinterpret_cast<Function>(found);
}

template <class Kernel>
Kernel kernel(const char* family, int length, const char* type) {
  return function<Kernel>(singles(), std::string("xfm") + family + '_' + std::to_string(length) + '_' + type);
}
template <class Batch>
Batch batch(const char* family, const char* type) {
  return function<Batch>(batches(), std::string("xfmMany") + family + '_' + type);
}

template <class Function>
void find_dct4(Function& found, const char* name) {
  found = function<Function>(singles(), std::string(name) + '_' + XFM_FFTW_REAL);
}

}  // namespace

ComplexKernel complex_kernel(const char* family, int length) {
  return kernel<ComplexKernel>(family, length, XFM_FFTW_COMPLEX);
}
RealKernel real_kernel(const char* family, int length) {
  return kernel<RealKernel>(family, length, XFM_FFTW_REAL);
}
ComplexBatch complex_batch(const char* family) { return batch<ComplexBatch>(family, XFM_FFTW_COMPLEX); }
RealBatch real_batch(const char* family) { return batch<RealBatch>(family, XFM_FFTW_REAL); }

const Dct4Functions& dct4_functions() {
  static const Dct4Functions functions = [] {
    Dct4Functions found{};
    find_dct4(found.init, "xfmDCT4InitAlloc");
    find_dct4(found.run, "xfmDCT4");
    find_dct4(found.free, "xfmDCT4Free");
    return found;
  }();
  return functions;
}
