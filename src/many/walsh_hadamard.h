// Batches of Walsh-Hadamard transforms: small orders with a vector for every scalar, and single calls beyond,
// whose kernels fill their registers by themselves.
#pragma once

#include "src/many/run.h"
#include "src/wht/factors.h"
#include "src/wht/stages.h"
#include "xfmcore.h"

namespace xfm::many::walsh_hadamard {

constexpr int lowest_order = 1, highest_order = 13;

template <class T>
inline constexpr auto generic = xfmWHT_32f;
template <>
inline constexpr auto generic<xfm64f> = xfmWHT_64f;
template <class T>
inline constexpr auto buffer_size = xfmWHTGetBufferSize_32f;
template <>
inline constexpr auto buffer_size<xfm64f> = xfmWHTGetBufferSize_64f;

template <class T, int lanes, int order>
void body(const Input& in, const Output& out, std::ptrdiff_t groups, T factor) {
  using V = Vector<T, lanes>;
  const V s = broadcast<V>(factor);
  const char* x = in.first;
  char* y = out.first;
  for (; groups > 0; --groups) {
    wht::transform<1 << order, 1, V>([&](V* v, int k) XFM_INLINE { *v = load<V>(x + k * in.step); },
                                     [&](int k, V v) XFM_INLINE { store(y + k * out.step, s * v); });
    x += in.group;
    y += out.group;
  }
}

template <class T, int order>
inline constexpr auto factors = wht::make_factors<T, order, 1>();

template <class T, int order>
xfmStatus single(const T* src, T* dst, std::int32_t flag) {
  return generic<T>(src, dst, order, flag, nullptr);  // these orders use no buffer
}

template <class T, int lanes, int order>
inline constexpr Row<T> row = {body<T, lanes, order>,
                               nullptr,
                               factors<T, order>,
                               single_calls<T, single<T, order>>,
                               {1 << order, 2, 0, 1, {-1, -1}},
                               {1 << order, 2, 0, 1, {-1, -1}}};

/// One transform after the other; what is not contiguous is copied to where it is.
template <class T>
void one_by_one(const Array<const T>& src, const Array<T>& dst, int order, std::int64_t count,
                std::int32_t flag, void* buffer) {
  const bool contiguous = src.stride == 1 && dst.stride == 1;
  alignas(64) T line[1 << highest_order];
  for (std::int64_t t = 0; t < count; ++t) {
    const auto from = [&](int k) {
      return reinterpret_cast<const T*>(src.transform(t) + static_cast<Address>(k) * src.step());
    };
    const auto to = [&](int k) {
      return reinterpret_cast<T*>(dst.transform(t) + static_cast<Address>(k) * dst.step());
    };
    if (contiguous) {
      generic<T>(from(0), to(0), order, flag, buffer);
      continue;
    }
    for (int k = 0; k < 1 << order; ++k) line[k] = *from(k);
    generic<T>(line, line, order, flag, buffer);
    for (int k = 0; k < 1 << order; ++k) *to(k) = line[k];
  }
}

/// The whole function, with rows for the orders that are computed in lanes. The work buffer is that of single
/// calls; without one, there is one for the batch.
template <class T, int lanes>
xfmStatus run(std::span<const Choice<T>> rows, const Array<const T>& src, const Array<T>& dst,
              std::int32_t order, std::int64_t count, std::int32_t flag, void* buffer) {
  if (order < lowest_order + static_cast<int>(rows.size()))
    return many::run<T, lanes>(rows, lowest_order, src, dst, order, count, flag);
  std::uint32_t bytes = 0;
  if (buffer_size<T>(order, &bytes) != xfmStsOk || count < 0) return xfmStsBadSize;
  if (const xfmStatus status = check(src.data, dst.data, flag); status != xfmStsOk) return status;
  if (count == 0) return xfmStsOk;
  void* const own = buffer == nullptr && bytes > 0 ? xfmMalloc(bytes) : nullptr;
  one_by_one(src, dst, order, count, flag, own != nullptr ? own : buffer);
  if (own != nullptr) xfmFree(own);
  return xfmStsOk;
}

}  // namespace xfm::many::walsh_hadamard
