// The DCT-IV for many arrays, and its states.
#pragma once

#include <cstdint>

#include <xfm.h>

/// What a call holds while it runs: a state of its own, and a row if elements are not neighbours.
template <class T>
struct Dct4Work {
  void* state = nullptr;
  T* row = nullptr;
};

/// Runs transforms one after the other, with the signature of a Batch; `work` is a Dct4Work<T>. The flags
/// stand for the factors 1, sqrt(2/N) and 2/N.
template <class T>
xfmStatus dct4_batch(const void* src, std::int64_t src_stride, std::int64_t src_distance, void* dst,
                     std::int64_t dst_stride, std::int64_t dst_distance, std::int32_t length,
                     std::int64_t count, std::int32_t flag, void* work);

/// A state for one call, made or taken from those that are idle; null if there is no memory. To make one
/// takes longer than to run it, so states are kept. Both functions are called by holders of the interpreter's
/// lock, which is what guards the idle ones.
template <class T>
void* take_dct4_state(std::int32_t length);
template <class T>
void give_back_dct4_state(void* state, std::int32_t length);
