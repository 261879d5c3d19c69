// One set of names for the DCT-IV functions of both precisions.
#pragma once

#include "xfm.h"

namespace xfm::test {

template <class T>
struct Engine;

template <>
struct Engine<float> {
  using State = xfmDCT4State_32f;
  static constexpr auto get_size = xfmDCT4GetSize_32f;
  static constexpr auto init = xfmDCT4Init_32f;
  static constexpr auto init_alloc = xfmDCT4InitAlloc_32f;
  static constexpr auto run = xfmDCT4_32f;
  static constexpr auto free = xfmDCT4Free_32f;
  static constexpr int longest = 26;          ///< exponent of the longest length that is a DCT-IV
  static constexpr double bound_4096 = 6e-5;  ///< greatest error at N = 4096 of inputs in -1 .. 1
};

template <>
struct Engine<double> {
  using State = xfmDCT4State_64f;
  static constexpr auto get_size = xfmDCT4GetSize_64f;
  static constexpr auto init = xfmDCT4Init_64f;
  static constexpr auto init_alloc = xfmDCT4InitAlloc_64f;
  static constexpr auto run = xfmDCT4_64f;
  static constexpr auto free = xfmDCT4Free_64f;
  static constexpr int longest = 25;
  static constexpr double bound_4096 = 3e-13;
};

}  // namespace xfm::test
