#include <Python.h>

#include "dct4.h"

#include <algorithm>
#include <cmath>
#include <type_traits>

namespace {

xfmStatus make(xfmDCT4State_32f** state, std::int32_t length) { return xfmDCT4InitAlloc_32f(state, length); }
xfmStatus make(xfmDCT4State_64f** state, std::int32_t length) { return xfmDCT4InitAlloc_64f(state, length); }
xfmStatus run(const float* in, float* out, xfmDCT4State_32f* state) { return xfmDCT4_32f(in, out, state); }
xfmStatus run(const double* in, double* out, xfmDCT4State_64f* state) { return xfmDCT4_64f(in, out, state); }
void release(xfmDCT4State_32f* state) { xfmDCT4Free_32f(state); }
void release(xfmDCT4State_64f* state) { xfmDCT4Free_64f(state); }

template <class T>
using State = std::conditional_t<std::is_same_v<T, float>, xfmDCT4State_32f, xfmDCT4State_64f>;

struct Idle {
  void* state = nullptr;
  std::int32_t length = 0;
};
// The most recently used first. As many as there may be threads at work on a few lengths; longer states are
// worth their memory only while they run.
constexpr int most_idle = 8;
constexpr std::int32_t longest_idle = 1 << 20;
template <class T>
Idle idle[most_idle];

double factor_of(std::int32_t flag, std::int32_t length) {
  if (flag == XFM_SCALE_NONE) return 1;
  return flag == XFM_SCALE_BY_SQRT_N ? std::sqrt(2.0 / length) : 2.0 / length;
}

}  // namespace

template <class T>
xfmStatus dct4_batch(const void* src, std::int64_t src_stride, std::int64_t src_distance, void* dst,
                     std::int64_t dst_stride, std::int64_t dst_distance, std::int32_t length,
                     std::int64_t count, std::int32_t flag, void* work) {
  const auto [state, row] = *static_cast<const Dct4Work<T>*>(work);
  const double factor = factor_of(flag, length);
  for (std::int64_t t = 0; t < count; ++t) {
    const T* in = static_cast<const T*>(src) + t * src_distance;
    T* out = static_cast<T*>(dst) + t * dst_distance;
    T* result = dst_stride == 1 ? out : row;
    if (src_stride != 1)
      for (std::int64_t k = 0; k < length; ++k) row[k] = in[k * src_stride];
    if (const xfmStatus status = run(src_stride == 1 ? in : row, result, static_cast<State<T>*>(state)))
      return status;
    if (factor != 1)
      for (std::int64_t k = 0; k < length; ++k) result[k] = static_cast<T>(result[k] * factor);
    if (dst_stride != 1)
      for (std::int64_t k = 0; k < length; ++k) out[k * dst_stride] = row[k];
  }
  return xfmStsOk;
}

template <class T>
void* take_dct4_state(std::int32_t length) {
  const auto found =
      std::find_if(idle<T>, idle<T> + most_idle, [&](const Idle& i) { return i.length == length; });
  if (found != idle<T> + most_idle) {
    void* state = found->state;
    std::move(found + 1, idle<T> + most_idle, found);
    idle<T>[most_idle - 1] = {};
    return state;
  }
  State<T>* made = nullptr;
  Py_BEGIN_ALLOW_THREADS;  // a long one takes seconds
  if (make(&made, length) != xfmStsOk) made = nullptr;
  Py_END_ALLOW_THREADS;
  return made;
}

template <class T>
void give_back_dct4_state(void* state, std::int32_t length) {
  if (length > longest_idle) {
    release(static_cast<State<T>*>(state));
    return;
  }
  const Idle oldest = idle<T>[most_idle - 1];
  if (oldest.state) release(static_cast<State<T>*>(oldest.state));
  std::move_backward(idle<T>, idle<T> + most_idle - 1, idle<T> + most_idle);
  idle<T>[0] = {state, length};
}

template xfmStatus dct4_batch<float>(const void*, std::int64_t, std::int64_t, void*, std::int64_t,
                                     std::int64_t, std::int32_t, std::int64_t, std::int32_t, void*);
template xfmStatus dct4_batch<double>(const void*, std::int64_t, std::int64_t, void*, std::int64_t,
                                      std::int64_t, std::int32_t, std::int64_t, std::int32_t, void*);
template void* take_dct4_state<float>(std::int32_t);
template void* take_dct4_state<double>(std::int32_t);
template void give_back_dct4_state<float>(void*, std::int32_t);
template void give_back_dct4_state<double>(void*, std::int32_t);
