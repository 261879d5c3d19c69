// Mistakes that must not compile. Each differs in one place only from what does, with XFM_RIGHT.
#include <array>
#include <complex>

#include "xfm.hpp"
#include "xfm_many.hpp"

#if defined(XFM_RIGHT)
#define PICK(right, wrong) right
#else
#define PICK(right, wrong) wrong
#endif

using C = std::complex<float>;

namespace input_too_short {
void use(std::array<C, PICK(64, 63)>& in, std::array<C, 64>& out) {
  xfm::dft_forward<64>(in, out, xfm::scale::none);
}
}  // namespace input_too_short

namespace input_too_long {
void use(std::array<C, PICK(64, 65)>& in, std::array<C, 64>& out) {
  xfm::dft_inverse<64>(in, out, xfm::scale::none);
}
}  // namespace input_too_long

namespace output_too_short {
void use(std::array<C, 64>& in, std::array<C, PICK(64, 63)>& out) {
  xfm::dft_forward<64>(in, out, xfm::scale::none);
}
}  // namespace output_too_short

namespace output_of_plain_array_too_short {
void use(C (&in)[8], C (&out)[PICK(8, 7)]) { xfm::dft_forward<8>(in, out, xfm::scale::none); }
}  // namespace output_of_plain_array_too_short

namespace length_65 {
void use(std::array<C, PICK(64, 65)>& data) { xfm::dft_forward<PICK(64, 65)>(data, data, xfm::scale::none); }
}  // namespace length_65

namespace length_1 {
void use(std::array<C, PICK(2, 1)>& data) { xfm::dft_inverse<PICK(2, 1)>(data, data, xfm::scale::none); }
}  // namespace length_1

namespace length_0 {
void use(std::span<float, PICK(2, 0)> data) { xfm::hartley<PICK(2, 0)>(data, data, xfm::scale::none); }
}  // namespace length_0

namespace length_known_at_run_time_only {
void use(std::span<float, PICK(8, std::dynamic_extent)> data) {
  xfm::hartley<8>(data, data, xfm::scale::none);
}
}  // namespace length_known_at_run_time_only

namespace mixed_precision {
void use(std::array<float, 8>& in, std::array<PICK(float, double), 8>& out) {
  xfm::hartley<8>(in, out, xfm::scale::none);
}
}  // namespace mixed_precision

namespace real_numbers_where_complex_ones_belong {
void use(std::array<PICK(C, float), 8>& in, std::array<C, 8>& out) {
  xfm::dft_forward<8>(in, out, xfm::scale::none);
}
}  // namespace real_numbers_where_complex_ones_belong

namespace constant_output {
void use(std::array<C, 8>& in, PICK(, const) std::array<C, 8>& out) {
  xfm::dft_forward<8>(in, out, xfm::scale::none);
}
}  // namespace constant_output

namespace number_for_a_scale {
void use(std::array<C, 8>& data) { xfm::dft_forward<8>(data, data, PICK(xfm::scale::none, 8)); }
}  // namespace number_for_a_scale

namespace hartley_input_too_short {
void use(std::array<float, PICK(12, 11)>& in, std::array<float, 12>& out) {
  xfm::hartley<12>(in, out, xfm::scale::none);
}
}  // namespace hartley_input_too_short

namespace order_14 {
void use(std::span<float, 1 << PICK(13, 14)> data) { xfm::wht<PICK(13, 14)>(data, data, xfm::scale::none); }
}  // namespace order_14

namespace order_0 {
void use(std::span<float, 1 << PICK(1, 0)> data) { xfm::wht<PICK(1, 0)>(data, data, xfm::scale::none); }
}  // namespace order_0

namespace order_as_length {
void use(std::array<float, PICK(32, 5)>& data) { xfm::wht<5>(data, data, xfm::scale::none); }
}  // namespace order_as_length

namespace buffer_too_small {
void use(std::array<float, 512>& data, xfm::wht_buffer<float, PICK(9, 8)>& buffer) {
  xfm::wht<9>(data, data, xfm::scale::none, buffer);
}
}  // namespace buffer_too_small

namespace buffer_of_the_other_precision {
void use(std::array<float, 512>& data, xfm::wht_buffer<PICK(float, double)>& buffer) {
  xfm::wht<9>(data, data, xfm::scale::none, buffer);
}
}  // namespace buffer_of_the_other_precision

namespace spectrum_of_another_length {
void use(std::array<float, 8>& in, xfm::ccs<float, PICK(8, 9)>& out) {
  xfm::dft_forward<8>(in, out, xfm::scale::none);
}
}  // namespace spectrum_of_another_length

namespace spectrum_of_another_precision {
void use(std::array<float, 8>& in, xfm::ccs<PICK(float, double), 8>& out) {
  xfm::dft_forward<8>(in, out, xfm::scale::none);
}
}  // namespace spectrum_of_another_precision

namespace samples_of_another_length {
void use(const xfm::perm<float, 8>& in, std::array<float, PICK(8, 7)>& out) {
  xfm::dft_inverse<8>(in, out, xfm::scale::none);
}
}  // namespace samples_of_another_length

namespace constant_spectrum {
void use(std::array<float, 8>& in, PICK(, const) xfm::pack<float, 8>& out) {
  xfm::dft_forward<8>(in, out, xfm::scale::none);
}
}  // namespace constant_spectrum

namespace view_of_constant_elements {
void use(std::array<float, 8>& in, xfm::pack_view<PICK(float, const float), 8> out) {
  xfm::dft_forward<8>(in, out, xfm::scale::none);
}
}  // namespace view_of_constant_elements

namespace view_of_too_little_memory {
xfm::ccs_view<float, 64> use(std::array<float, PICK(66, 64)>& memory) {
  return xfm::ccs_view<float, 64>(memory);
}
}  // namespace view_of_too_little_memory

namespace view_in_another_layout {
xfm::pack_view<float, 8> use(xfm::PICK(pack, perm) < float, 8 > &spectrum) { return spectrum; }
}  // namespace view_in_another_layout

namespace conversion_to_another_length {
void use(const xfm::ccs<float, 8>& from, xfm::pack<float, PICK(8, 9)>& to) { xfm::convert(from, to); }
}  // namespace conversion_to_another_length

namespace spectrum_of_65_samples {
xfm::ccs<float, PICK(64, 65)> use() { return {}; }
}  // namespace spectrum_of_65_samples

namespace status_ignored {
void use(std::span<float> data) { PICK(xfm::check, )(xfm::hartley(data, data, xfm::scale::none)); }
}  // namespace status_ignored

namespace copied_dct4 {
xfm::dct4<float> use(xfm::dct4<float>& from) { return PICK(std::move(from), from); }
}  // namespace copied_dct4

namespace dct4_in_another_precision {
xfm::status use(xfm::dct4<float>& transform, std::span<PICK(float, double)> data) { return transform(data); }
}  // namespace dct4_in_another_precision

namespace batch_of_another_precision {
xfm::status use(std::span<const float> in, std::span<PICK(float, double)> out) {
  return xfm::hartley(xfm::rows(in, 8), xfm::rows(out, 8), xfm::scale::none);
}
}  // namespace batch_of_another_precision

namespace batch_without_a_layout {
xfm::status use(std::span<const float> in, std::span<float> out) {
  return xfm::dft_forward PICK(<xfm::layout::pack>, )(xfm::rows(in, 8), xfm::rows(out, 8), xfm::scale::none);
}
}  // namespace batch_without_a_layout
