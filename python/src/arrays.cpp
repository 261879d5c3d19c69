#include "arrays.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>

namespace {

// The dimensions, outermost in memory first; `last`, if it is one, at the end.
void order_of_memory(PyArrayObject* array, int last, int* order) {
  const int dimensions = PyArray_NDIM(array);
  std::iota(order, order + dimensions, 0);
  std::stable_sort(order, order + dimensions, [&](int a, int b) {
    if (a == last || b == last) return b == last && a != last;
    return std::abs(PyArray_STRIDE(array, a)) > std::abs(PyArray_STRIDE(array, b));
  });
}

// Where elements lie, last byte included.
std::pair<const char*, const char*> extent(PyArrayObject* array) {
  const char* first = PyArray_BYTES(array);
  const char* last = first + PyArray_ITEMSIZE(array);
  for (int d = 0; d < PyArray_NDIM(array); ++d) {
    const npy_intp way = (PyArray_DIM(array, d) - 1) * PyArray_STRIDE(array, d);
    (way < 0 ? first : last) += way;
  }
  return {first, last};
}

}  // namespace

bool fits(PyArrayObject* array, int axis, const Side& side) {
  if (PyArray_TYPE(array) != side.type || !PyArray_ISALIGNED(array) || !PyArray_ISNOTSWAPPED(array))
    return false;
  if (side.half && PyArray_STRIDE(array, axis) != 2 * side.unit && PyArray_DIM(array, axis) > 1) return false;
  for (int d = 0; d < PyArray_NDIM(array); ++d)
    if (PyArray_DIM(array, d) > 1 && PyArray_STRIDE(array, d) % side.unit != 0) return false;
  return true;
}

Array make_array(const Side& side, const npy_intp* shape, PyArrayObject* like, int axis) {
  const int dimensions = PyArray_NDIM(like);
  if (PyArray_IS_C_CONTIGUOUS(like) && (!side.half || axis == dimensions - 1))
    return Array(PyArray_SimpleNew(dimensions, shape, side.type));

  int order[NPY_MAXDIMS];
  order_of_memory(like, side.half ? axis : -1, order);
  PyArray_Descr* type = PyArray_DescrFromType(side.type);
  npy_intp strides[NPY_MAXDIMS];
  npy_intp stride = type->elsize;
  for (int i = dimensions - 1; i >= 0; --i) {
    strides[order[i]] = stride;
    stride *= std::max<npy_intp>(shape[order[i]], 1);
  }
  return Array(PyArray_NewFromDescr(&PyArray_Type, type, dimensions, shape, strides, nullptr, 0, nullptr));
}

Array first_elements(PyArrayObject* array, int axis, npy_intp length) {
  npy_intp shape[NPY_MAXDIMS];
  std::copy_n(PyArray_DIMS(array), PyArray_NDIM(array), shape);
  shape[axis] = length;
  PyArray_Descr* type = PyArray_DESCR(array);
  Py_INCREF(reinterpret_cast<PyObject*>(type));
  Array view(PyArray_NewFromDescr(&PyArray_Type, type, PyArray_NDIM(array), shape, PyArray_STRIDES(array),
                                  PyArray_DATA(array), PyArray_FLAGS(array) & NPY_ARRAY_WRITEABLE, nullptr));
  if (!view) return view;
  Py_INCREF(reinterpret_cast<PyObject*>(array));
  if (PyArray_SetBaseObject(view.get(), reinterpret_cast<PyObject*>(array)) < 0) return Array();
  return view;
}

Array copy_of_length(PyArrayObject* array, int axis, npy_intp length, const Side& side) {
  npy_intp shape[NPY_MAXDIMS];
  std::copy_n(PyArray_DIMS(array), PyArray_NDIM(array), shape);
  const npy_intp have = std::min(shape[axis], length);
  shape[axis] = length;
  Array copy = make_array(side, shape, array, axis);
  if (!copy) return copy;
  if (have == length) {
    const Array from = first_elements(array, axis, have);
    if (!from || PyArray_CopyInto(copy.get(), from.get()) < 0) return Array();
    return copy;
  }
  std::fill_n(PyArray_BYTES(copy.get()), PyArray_NBYTES(copy.get()), '\0');
  const Array part = first_elements(copy.get(), axis, have);
  if (!part || PyArray_CopyInto(part.get(), array) < 0) return Array();
  return copy;
}

bool may_overlap(PyArrayObject* a, PyArrayObject* b) {
  const auto [a_first, a_last] = extent(a);
  const auto [b_first, b_last] = extent(b);
  return a_first < b_last && b_first < a_last;
}

bool in_place(PyArrayObject* src, const Side& src_side, PyArrayObject* dst, const Side& dst_side, int axis) {
  if (PyArray_DATA(src) != PyArray_DATA(dst) || src_side.unit != dst_side.unit) return false;
  for (int d = 0; d < PyArray_NDIM(src); ++d) {
    // Along the axis of a half spectrum the library counts real numbers.
    const npy_intp src_stride = d == axis && src_side.half ? src_side.unit : PyArray_STRIDE(src, d);
    const npy_intp dst_stride = d == axis && dst_side.half ? dst_side.unit : PyArray_STRIDE(dst, d);
    if (src_stride != dst_stride && PyArray_DIM(src, d) > 1) return false;
  }
  return true;
}
