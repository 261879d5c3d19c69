// In a file of its own, so that a program that defines this function can still link the static library.
#include "xfmcore.h"

int ownGetFeature(int /*feature*/) { return 0; }
