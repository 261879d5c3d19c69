// Each function is nothing but one call of the C function that it is named after; one_call.sh looks at the
// code.
#include "xfm.hpp"

#define NUMBERS(n, T)                                                                               \
  extern "C" void one_xfmDFTFwd_CToC_##n##_##T##c(std::span<const std::complex<float_##T>, n> in,   \
                                                  std::span<std::complex<float_##T>, n> out) {      \
    xfm::dft_forward<n>(in, out, xfm::scale::none);                                                 \
  }                                                                                                 \
  extern "C" void one_xfmDFTInv_CToC_##n##_##T##c(const std::array<std::complex<float_##T>, n>& in, \
                                                  std::array<std::complex<float_##T>, n>& out) {    \
    xfm::dft_inverse<n>(in, out, xfm::scale::by_sqrt_n);                                            \
  }                                                                                                 \
  extern "C" void one_xfmHartley_##n##_##T(const float_##T(&in)[n], float_##T(&out)[n]) {           \
    xfm::hartley<n>(in, out, xfm::scale::none);                                                     \
  }                                                                                                 \
  LAYOUT(n, T, CCS, ccs)                                                                            \
  LAYOUT(n, T, Pack, pack)                                                                          \
  LAYOUT(n, T, Perm, perm)

#define LAYOUT(n, T, Name, name)                                                               \
  extern "C" void one_xfmDFTFwd_RTo##Name##_##n##_##T(const std::array<float_##T, n>& in,      \
                                                      xfm::name<float_##T, n>& out) {          \
    xfm::dft_forward<n>(in, out, xfm::scale::none);                                            \
  }                                                                                            \
  extern "C" void one_xfmDFTInv_##Name##ToR_##n##_##T(xfm::name##_view<const float_##T, n> in, \
                                                      std::array<float_##T, n>& out) {         \
    xfm::dft_inverse<n>(in, out, xfm::scale::inverse_by_n);                                    \
  }

#define ORDER(order, T)                                                                 \
  extern "C" void one_xfmWHT_##order##_##T(const std::array<float_##T, 1 << order>& in, \
                                           std::array<float_##T, 1 << order>& out) {    \
    xfm::wht<order>(in, out, xfm::scale::none);                                         \
  }                                                                                     \
  extern "C" void two_xfmWHT_##order##_##T(std::array<float_##T, 1 << order>& data,     \
                                           xfm::wht_buffer<float_##T>& buffer) {        \
    xfm::wht<order>(data, data, xfm::scale::none, buffer);                              \
  }

using float_32f = float;
using float_64f = double;

NUMBERS(2, 32f)
NUMBERS(13, 32f)
NUMBERS(64, 32f)
NUMBERS(2, 64f)
NUMBERS(37, 64f)
NUMBERS(64, 64f)
ORDER(1, 32f)
ORDER(13, 32f)
ORDER(6, 64f)
ORDER(9, 64f)
