// The version of the library: two constant records that differ only in the name.
#include "xfm.h"
#include "xfmcore.h"

namespace {

/// The processor feature that the name marks; the meaning of the code is up to the core.
constexpr int marked_feature = 128;

constexpr xfmLibraryVersion record(const char* name) {
  return {.major = 6,
          .minor = 1,
          .majorBuild = 137,
          .build = 316,
          .targetCode = "q9",
          .name = name,
          .version = "6.1 build 137.36",
          .buildDate = "Sep 29 2009"};
}

constexpr xfmLibraryVersion marked = record("xfmq9-6.1.dll+");
constexpr xfmLibraryVersion plain = record("xfmq9-6.1.dll");

}  // namespace

const xfmLibraryVersion* xfmGetLibVersion() { return ownGetFeature(marked_feature) != 0 ? &marked : &plain; }
