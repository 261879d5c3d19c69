#include <stdio.h>

#include "xfm.h"

int main(void) { return puts(xfmGetLibVersion()->name) < 0; }
