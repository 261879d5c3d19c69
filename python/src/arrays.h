// NumPy arrays as libxfmmany takes them: where it can, it reads and writes them as they are.
#pragma once

#include "numpy_api.h"

/// One side of a transform: along the axis the library moves by `step` of its elements.
struct Side {
  int type;       ///< NumPy's number of the data type
  npy_intp unit;  ///< bytes of the library's elements: of a half spectrum, these are real numbers
  bool half;      ///< of a half spectrum: complex numbers that are neighbours along the axis
};

/// Whether the library can work on the array itself: the data type, its alignment, and strides in whole
/// elements.
bool fits(PyArrayObject* array, int axis, const Side& side);

/// A new array. Its memory has the order of another, but for half spectra, whose axis comes last.
Array make_array(const Side& side, const npy_intp* shape, PyArrayObject* like, int axis);

/// A view of the first elements along an axis.
Array first_elements(PyArrayObject* array, int axis, npy_intp length);

/// A copy that the library can work on, of this length along the axis: the end is cut off, or zeros are
/// appended.
Array copy_of_length(PyArrayObject* array, int axis, npy_intp length, const Side& side);

/// Whether two arrays may share memory.
bool may_overlap(PyArrayObject* a, PyArrayObject* b);

/// Whether the library, given both, works in place.
bool in_place(PyArrayObject* src, const Side& src_side, PyArrayObject* dst, const Side& dst_side, int axis);
