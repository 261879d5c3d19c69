/// @file
/// xfm for C++20: the transforms of xfm.h on spans, with lengths and layouts as types. Nothing to link beyond
/// libxfm.
///
/// Batches are in xfm_many.hpp, which needs libxfmmany.
#pragma once

#include "xfm/dct4.hpp"
#include "xfm/dft.hpp"
#include "xfm/half_spectrum.hpp"
#include "xfm/hartley.hpp"
#include "xfm/mdct.hpp"
#include "xfm/real.hpp"
#include "xfm/status.hpp"
#include "xfm/wht.hpp"
#include "xfm/window.hpp"
