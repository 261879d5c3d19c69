// The kernels of the family: the row of an order as code, one straight-line body for each pass.
#pragma once

#include <type_traits>

#include "src/wht/factors.h"
#include "src/wht/passes.h"
#include "src/wht/stages.h"
#include "xfmcore.h"

namespace xfm::wht {

/// The values that hold a block: registers, or single elements.
template <class T, int block>
using BlockValue = Vector<T, lanes_in_use(block, lanes_of<Register<T>>, unaligned_is_free)>;

/// How many registers of a block take their low stages together: one, or, to be transposed, as many as they
/// have lanes. Twice as many cover one stage more, which pays from four lanes on.
template <class V, int count>
constexpr int group_size() {
  if (unaligned_is_free) return 1;
  return (lanes_of<V> > 2 && count > lanes_of<V> ? 2 : 1) * lanes_of<V>;
}

template <int count, class V>
XFM_INLINE inline void low_stages(V* v) {
  if constexpr (unaligned_is_free)
    *v = stages_within(*v);
  else if constexpr (lanes_of<V> > 1)
    transposed_stages<count>(v);
}

/// All stages of `block` adjacent elements; take(index, register) of every result.
template <int block, class Memory, class T, class Take>
XFM_INLINE inline void block_pass(const T* src, Take take) {
  using V = BlockValue<T, block>;
  constexpr int width = lanes_of<V>, count = block / width, group = group_size<V, count>();
  transform<count, group, V>(
      [&](V* v, int at) XFM_INLINE {
        unrolled<group>([&](auto i) XFM_INLINE { v[i] = Memory::template load<V>(src + (at + i) * width); });
        low_stages<group>(v);
      },
      [&](int i, V v) XFM_INLINE { take(i * width, v); });
}

/// For what is aligned if registers have 16 bytes, and anywhere if they are wider: work buffers, single
/// elements.
using AnyMemory = std::conditional_t<unaligned_is_free, Unaligned, Aligned>;

/// The stages between `radix` vectors that are `stride` elements apart.
template <int radix, int stride, class T, class Take>
XFM_INLINE inline void column_pass(const T* src, Take take) {
  using V = Register<T>;
  for (int at = 0; at < stride; at += lanes_of<V>) {
    transform<radix, 1, V>([&](V* v, int i) XFM_INLINE { *v = AnyMemory::load<V>(src + at + i * stride); },
                           [&](int i, V v) XFM_INLINE { take(at + i * stride, v); });
  }
}

/// All stages but those of the last pass, from src into the main area. With a middle pass, the blocks of a
/// super-block are staged, so that the data of the two passes stays in the nearest cache.
template <class T, int order, class Memory>
XFM_INLINE inline void fill_main_area(const T* src, T* buffer) {
  constexpr Passes p = passes<T>(order);
  T* const staging = buffer + p.main_area();
  for (int at = 0; at < p.length(); at += p.super_block()) {
    T* const blocks = p.has_staging() ? staging : buffer + at;
    for (int b = 0; b < p.super_block(); b += p.block) {
      block_pass<p.block, Memory>(
          src + at + b, [&](int i, Register<T> v) XFM_INLINE { AnyMemory::store(blocks + b + i, v); });
    }
    if constexpr (p.has_staging()) {
      column_pass<p.middle, p.block>(
          staging, [&](int i, Register<T> v) XFM_INLINE { AnyMemory::store(buffer + at + i, v); });
    }
  }
}

/// One number where it is to be broadcast, or repeated for the lanes of a register.
template <class T, int order>
inline constexpr auto factors =
    make_factors<T, order, unaligned_is_free ? 1 : lanes_of<BlockValue<T, 1 << order>>>();

template <class T, int order>
XFM_INLINE inline auto factor(std::int32_t flag) {
  using V = BlockValue<T, 1 << order>;
  const T* const row = factors<T, order>.of(flag);
  if constexpr (unaligned_is_free)
    return broadcast<V>(*row);
  else
    return Aligned::load<V>(row);
}

/// What the last pass does with its results.
template <class Memory, class T, class V>
XFM_INLINE inline auto scale_and_store(T* dst, V s) {
  return [=](int i, V v) XFM_INLINE { Memory::store(dst + i, s * v); };
}

template <class T, int order, class Memory>
XFM_INLINE inline xfmStatus body(const T* src, T* dst, std::int32_t flag, void* buffer) {
  if (const xfmStatus status = check(src, dst, flag); status != xfmStsOk) return status;
  constexpr Passes p = passes<T>(order);
  if constexpr (p.is_block()) {
    block_pass<p.block, Memory>(src, scale_and_store<Memory>(dst, factor<T, order>(flag)));
  } else {
    // No status reports exhausted memory: the result of xfmMalloc is not tested.
    T* const work = static_cast<T*>(buffer != nullptr ? buffer : xfmMalloc(p.template buffer_bytes<T>()));
    fill_main_area<T, order, Memory>(src, work);
    column_pass<p.last, p.super_block()>(work, scale_and_store<Memory>(dst, factor<T, order>(flag)));
    if (buffer == nullptr) xfmFree(work);
  }
  return xfmStsOk;
}

}  // namespace xfm::wht

#define XFM_WHT_SIGNATURE(name, type) \
  xfmStatus name(const xfm##type* src, xfm##type* dst, int32_t flag, void* buffer)

/// A kernel of one body, whatever the alignment: element by element, or where unaligned data are free.
#define XFM_WHT_ONE_BODY(order, type)                                                     \
  XFM_WHT_SIGNATURE(xfmWHT_##order##_##type, type) {                                      \
    return xfm::wht::body<xfm##type, order, xfm::wht::AnyMemory>(src, dst, flag, buffer); \
  }

#if XFM_UNALIGNED_IS_FREE
#define XFM_WHT_TWO_BODIES XFM_WHT_ONE_BODY
#define XFM_WHT_WITH_UNALIGNED_VARIANT XFM_WHT_ONE_BODY
#else

/// A kernel that holds both its aligned and its unaligned body.
#define XFM_WHT_TWO_BODIES(order, type)                                                                 \
  XFM_WHT_SIGNATURE(xfmWHT_##order##_##type, type) {                                                    \
    using namespace xfm;                                                                                \
    using namespace xfm::wht;                                                                           \
    if (!aligned(src, dst)) return body<xfm##type, order, UnalignedByElements>(src, dst, flag, buffer); \
    return body<xfm##type, order, Aligned>(src, dst, flag, buffer);                                     \
  }

/// A kernel with an unaligned variant.
#define XFM_WHT_WITH_UNALIGNED_VARIANT(order, type)                                                  \
  extern "C" XFM_UNALIGNED_VARIANT XFM_WHT_SIGNATURE(xfmWHT_##order##_##type##_unaligned, type) {    \
    return xfm::wht::body<xfm##type, order, xfm::UnalignedByElements>(src, dst, flag, buffer);       \
  }                                                                                                  \
  XFM_WHT_SIGNATURE(xfmWHT_##order##_##type, type) {                                                 \
    if (!xfm::aligned(src, dst)) return xfmWHT_##order##_##type##_unaligned(src, dst, flag, buffer); \
    return xfm::wht::body<xfm##type, order, xfm::Aligned>(src, dst, flag, buffer);                   \
  }

#endif
