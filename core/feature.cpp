// In a file of its own, so that a program that defines this function links with the static library all the same.
#include "xfmcore.h"

int ownGetFeature(int /*feature*/) { return 0; }
