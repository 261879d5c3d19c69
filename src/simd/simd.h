// The registers of the target that is being compiled for, by the same names on every target.
#pragma once

#include XFM_VOCABULARY
