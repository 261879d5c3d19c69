#include "batches.h"

#include <algorithm>
#include <cstdlib>

namespace {

/// A dimension apart from the axis, with its strides in elements of the library.
struct Dimension {
  npy_intp count, src, dst;
};

struct Dimensions {
  Dimension list[NPY_MAXDIMS];
  int size = 0;
};

/// Outermost in dst first. Those of one element say nothing.
Dimensions apart_from_axis(PyArrayObject* src, const Side& src_side, PyArrayObject* dst, const Side& dst_side,
                           int axis) {
  Dimensions result;
  for (int d = 0; d < PyArray_NDIM(src); ++d)
    if (d != axis && PyArray_DIM(src, d) != 1)
      result.list[result.size++] = {PyArray_DIM(src, d), PyArray_STRIDE(src, d) / src_side.unit,
                                    PyArray_STRIDE(dst, d) / dst_side.unit};
  std::stable_sort(result.list, result.list + result.size,
                   [](const Dimension& a, const Dimension& b) { return std::abs(a.dst) > std::abs(b.dst); });
  return result;
}

/// Neighbours become one where the step from the last element of the inner to the first of the next is like
/// all others.
void collapse(Dimensions& dimensions) {
  int size = 0;
  for (int i = 0; i < dimensions.size; ++i) {
    const Dimension inner = dimensions.list[i];
    Dimension* outer = size ? &dimensions.list[size - 1] : nullptr;
    if (outer && outer->src == inner.src * inner.count && outer->dst == inner.dst * inner.count)
      *outer = {outer->count * inner.count, inner.src, inner.dst};
    else
      dimensions.list[size++] = inner;
  }
  dimensions.size = size;
}

/// Takes out the dimension that calls of the library run over: the longest, but one of distance 1 that fills
/// the lanes is better.
Dimension take_batch(Dimensions& dimensions) {
  constexpr npy_intp lanes = 8;
  const auto worth = [](const Dimension& d) {
    const bool side_by_side = (d.src == 1 || d.dst == 1) && d.count >= lanes;
    return std::pair(side_by_side, d.count);
  };
  if (dimensions.size == 0) return {1, 0, 0};
  Dimension* end = dimensions.list + dimensions.size--;
  Dimension* best = std::max_element(
      dimensions.list, end, [&](const Dimension& a, const Dimension& b) { return worth(a) < worth(b); });
  const Dimension result = *best;
  std::move(best + 1, end, best);
  return result;
}

/// Steps through all places of the dimensions, the last one fastest. False at the end.
bool next(const Dimensions& dimensions, npy_intp* place, npy_intp& src, npy_intp& dst) {
  for (int i = dimensions.size - 1; i >= 0; --i) {
    const Dimension& d = dimensions.list[i];
    src += d.src;
    dst += d.dst;
    if (++place[i] < d.count) return true;
    src -= d.src * d.count;
    dst -= d.dst * d.count;
    place[i] = 0;
  }
  return false;
}

}  // namespace

xfmStatus run_batches(const Family& family, Precision precision, PyArrayObject* src, const Side& src_side,
                      PyArrayObject* dst, const Side& dst_side, int axis, std::int32_t length,
                      std::int32_t flag, void* work) {
  if (PyArray_SIZE(dst) == 0) return xfmStsOk;
  Dimensions outer = apart_from_axis(src, src_side, dst, dst_side, axis);
  collapse(outer);
  const Dimension batch = take_batch(outer);
  const npy_intp src_stride = src_side.half ? 1 : PyArray_STRIDE(src, axis) / src_side.unit;
  const npy_intp dst_stride = dst_side.half ? 1 : PyArray_STRIDE(dst, axis) / dst_side.unit;
  const Batch call = family.batch[static_cast<int>(precision)];
  const char* from = PyArray_BYTES(src);
  char* to = PyArray_BYTES(dst);

  xfmStatus status = xfmStsOk;
  npy_intp place[NPY_MAXDIMS], src_at = 0, dst_at = 0;
  std::fill_n(place, outer.size, 0);
  NPY_BEGIN_THREADS_DEF;
  NPY_BEGIN_THREADS_THRESHOLDED(PyArray_SIZE(dst));
  do {
    status = call(from + src_at * src_side.unit, src_stride, batch.src, to + dst_at * dst_side.unit,
                  dst_stride, batch.dst, length, batch.count, flag, work);
  } while (status == xfmStsOk && next(outer, place, src_at, dst_at));
  NPY_END_THREADS;
  return status;
}
