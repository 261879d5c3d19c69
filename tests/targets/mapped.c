/* Prints the file of the libxfm that the loader has chosen for this program. */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <stdio.h>

#include "xfm.h"

int main(void) {
  Dl_info found;
  const xfmLibraryVersion* const version = xfmGetLibVersion();
  if (version == NULL || dladdr(dlsym(RTLD_DEFAULT, "xfmGetLibVersion"), &found) == 0) return 1;
  return puts(found.dli_fname) < 0;
}
