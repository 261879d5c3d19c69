/// @file
/// Batches for C++20: many transforms of one length by one call, from and to any places in memory. Link
/// libxfmmany.
#pragma once

#include "xfm/batch.hpp"
#include "xfm/many.hpp"
