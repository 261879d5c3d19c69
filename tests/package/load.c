// usage: load LIBRARY
// Passes if the library can be loaded and has a version record.
#include <dlfcn.h>
#include <stdio.h>

int main(int count, char** arguments) {
  void* library = count == 2 ? dlopen(arguments[1], RTLD_NOW) : NULL;
  if (library == NULL || dlsym(library, "xfmGetLibVersion") == NULL) {
    const char* error = dlerror();
    return fprintf(stderr, "%s\n", error == NULL ? "usage: load LIBRARY" : error), 1;
  }
  return 0;
}
