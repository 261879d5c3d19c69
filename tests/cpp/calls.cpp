#include "tests/cpp/calls.h"

#include <utility>

namespace xfm::test {
namespace {

using Table = std::map<std::string, Calls>;

template <std::size_t N, class T>
auto fixed_span(T* data) {
  return std::span<T, N>(data, N);
}

template <class T>
constexpr const char* suffix = std::is_same_v<T, float> ? "_32f" : "_64f";

std::string name(const char* family, std::size_t number, const char* type) {
  return "xfm" + std::string(family) + "_" + std::to_string(number) + type;
}

template <class T, std::size_t N>
void add_complex(Table& table) {
  using C = std::complex<T>;
  const std::string type = suffix<T> + std::string("c");
  table[name("DFTFwd_CToC", N, type.c_str())] = {
      [](const void* src, void* dst, scale factor) {
        dft_forward<N>(fixed_span<N>(static_cast<const C*>(src)), fixed_span<N>(static_cast<C*>(dst)),
                       factor);
      },
      [](const void* src, void* dst, std::size_t n, scale factor) {
        return dft_forward(std::span(static_cast<const C*>(src), n), std::span(static_cast<C*>(dst), n),
                           factor);
      }};
  table[name("DFTInv_CToC", N, type.c_str())] = {
      [](const void* src, void* dst, scale factor) {
        dft_inverse<N>(fixed_span<N>(static_cast<const C*>(src)), fixed_span<N>(static_cast<C*>(dst)),
                       factor);
      },
      [](const void* src, void* dst, std::size_t n, scale factor) {
        return dft_inverse(std::span(static_cast<const C*>(src), n), std::span(static_cast<C*>(dst), n),
                           factor);
      }};
}

template <layout Layout, class T, std::size_t N>
void add_real(Table& table, const char* forward, const char* inverse) {
  constexpr std::size_t elements = element_count(Layout, N);
  table[name(forward, N, suffix<T>)] = {
      [](const void* src, void* dst, scale factor) {
        const half_spectrum_view<Layout, T, N> out(fixed_span<elements>(static_cast<T*>(dst)));
        dft_forward<N>(fixed_span<N>(static_cast<const T*>(src)), out, factor);
      },
      [](const void* src, void* dst, std::size_t n, scale factor) {
        const half_spectrum_view<Layout, T> out({static_cast<T*>(dst), element_count(Layout, n)}, n);
        return dft_forward({static_cast<const T*>(src), n}, out, factor);
      }};
  table[name(inverse, N, suffix<T>)] = {
      [](const void* src, void* dst, scale factor) {
        const half_spectrum_view<Layout, const T, N> in(fixed_span<elements>(static_cast<const T*>(src)));
        dft_inverse<N>(in, fixed_span<N>(static_cast<T*>(dst)), factor);
      },
      [](const void* src, void* dst, std::size_t n, scale factor) {
        const half_spectrum_view<Layout, const T> in({static_cast<const T*>(src), element_count(Layout, n)},
                                                     n);
        return dft_inverse(in, {static_cast<T*>(dst), n}, factor);
      }};
}

template <class T, std::size_t N>
void add_hartley(Table& table) {
  table[name("Hartley", N, suffix<T>)] = {
      [](const void* src, void* dst, scale factor) {
        hartley<N>(fixed_span<N>(static_cast<const T*>(src)), fixed_span<N>(static_cast<T*>(dst)), factor);
      },
      [](const void* src, void* dst, std::size_t n, scale factor) {
        return hartley(std::span(static_cast<const T*>(src), n), std::span(static_cast<T*>(dst), n), factor);
      }};
}

// At odd orders in work space of the caller.
template <class T, std::size_t Order>
void add_wht(Table& table) {
  table[name("WHT", Order, suffix<T>)] = {
      [](const void* src, void* dst, scale factor) {
        const auto in = fixed_span<(1 << Order)>(static_cast<const T*>(src));
        const auto out = fixed_span<(1 << Order)>(static_cast<T*>(dst));
        wht_buffer<T, Order> buffer;
        if constexpr (Order % 2 == 0) {
          wht<Order>(in, out, factor);
        } else {
          wht<Order>(in, out, factor, buffer);
        }
      },
      [](const void* src, void* dst, std::size_t order, scale factor) {
        const std::span in(static_cast<const T*>(src), std::size_t{1} << order);
        const std::span out(static_cast<T*>(dst), std::size_t{1} << order);
        wht_buffer<T> buffer;
        return Order % 2 == 0 ? wht(in, out, factor) : wht(in, out, factor, buffer);
      }};
}

template <class T, std::size_t N>
void add_length(Table& table) {
  add_complex<T, N>(table);
  add_real<layout::ccs, T, N>(table, "DFTFwd_RToCCS", "DFTInv_CCSToR");
  add_real<layout::pack, T, N>(table, "DFTFwd_RToPack", "DFTInv_PackToR");
  add_real<layout::perm, T, N>(table, "DFTFwd_RToPerm", "DFTInv_PermToR");
  add_hartley<T, N>(table);
}

template <class T, std::size_t... I>
void add_lengths(Table& table, std::index_sequence<I...>) {
  (add_length<T, XFM_DFT_MIN_LENGTH + I>(table), ...);
}

template <class T, std::size_t... I>
void add_orders(Table& table, std::index_sequence<I...>) {
  (add_wht<T, XFM_WHT_MIN_ORDER + I>(table), ...);
}

template <class T>
void add(Table& table) {
  add_lengths<T>(table, std::make_index_sequence<XFM_DFT_MAX_LENGTH - XFM_DFT_MIN_LENGTH + 1>());
  add_orders<T>(table, std::make_index_sequence<XFM_WHT_MAX_ORDER - XFM_WHT_MIN_ORDER + 1>());
}

}  // namespace

const Table& calls() {
  static const Table table = [] {
    Table made;
    add<float>(made);
    add<double>(made);
    return made;
  }();
  return table;
}

}  // namespace xfm::test
