// Arrays of any dimension as batches.
#pragma once

#include "arrays.h"
#include "families.h"

/// Transforms of src along an axis into dst, by as few calls as their strides allow; both fit. The
/// interpreter's lock is released meanwhile, unless there is too little to do.
xfmStatus run_batches(const Family& family, Precision precision, PyArrayObject* src, const Side& src_side,
                      PyArrayObject* dst, const Side& dst_side, int axis, std::int32_t length,
                      std::int32_t flag, void* work);
