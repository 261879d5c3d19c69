// Another core, which reports every feature.
#include <cstdlib>

#include "xfmcore.h"

void* xfmMalloc(std::size_t size) { return std::malloc(size); }
void xfmFree(void* block) { std::free(block); }
int ownGetFeature(int /*feature*/) { return 1; }
