// Compiled for each level of processors, which XFM_TWIST_LEVEL names, with its widest registers and with
// fused multiply-add where there is one. Nothing here may have a name that another level's code shares.
#include "bench/twist.h"

#include <utility>

#include "src/simd/registers.h"

namespace xfm::bench::XFM_TWIST_LEVEL {

namespace {

#if defined(__AVX512F__)
constexpr int kRegisterBytes = 64;
#elif defined(__AVX2__)
constexpr int kRegisterBytes = 32;
#else
constexpr int kRegisterBytes = 16;
#endif

// ---- Plain loops.

template <class Real>
void before_in_loops(const Real* __restrict x, Real* __restrict z, int length, const Real* __restrict table) {
  const Real* __restrict w = table + 2;
  const int last = length - 1;
  for (int n = 0; n <= last; n += 2) {
    const Real a = x[n], b = x[last - n];
    z[n] = a * w[n] - b * w[n + 1];
    z[n + 1] = a * w[n + 1] + b * w[n];
  }
}

template <class Real>
void after_in_loops(const Real* __restrict z, Real* __restrict y, int length, const Real* __restrict table) {
  const Real* __restrict w = table + 2;
  const int last = length - 1;
  for (int k = 0; k <= last; k += 2) {
    const Real a = z[k], b = z[k + 1];
    y[k] = a * w[k] - b * w[k + 1];
    y[last - k] = -a * w[k + 1] - b * w[k];
  }
}

// ---- Registers.

template <class V>
XFM_INLINE inline V load(const Element<V>* p) {
  V v;
  __builtin_memcpy(&v, p, sizeof(V));
  return v;
}
template <class V>
XFM_INLINE inline void store(Element<V>* p, V v) {
  __builtin_memcpy(p, &v, sizeof(V));
}

/// Lane i is lane pick(i, lanes) of u; those of v count on.
template <class V, class Pick>
XFM_INLINE inline V shuffled(V u, V v, Pick) {
  return [&]<int... i>(std::integer_sequence<int, i...>) XFM_INLINE {
    return __builtin_shufflevector(u, v, Pick()(i, lanes_of<V>)...);
  }
  (std::make_integer_sequence<int, lanes_of<V>>{});
}
template <class V>
XFM_INLINE inline V reversed(V v) {
  return shuffled(v, v, [](int i, int n) { return n - 1 - i; });
}
template <class V>
XFM_INLINE inline V pairs_reversed(V v) {
  return shuffled(v, v, [](int i, int n) { return (n - 1 - i) ^ 1; });
}
/// Of each pair: the first of u and that of v; the second of v and that of u; the first of u and the second
/// of v; the second of u and the first of v.
template <class V>
XFM_INLINE inline V firsts(V u, V v) {
  return shuffled(u, v, [](int i, int n) { return i % 2 == 0 ? i : n + i - 1; });
}
template <class V>
XFM_INLINE inline V seconds(V u, V v) {
  return shuffled(u, v, [](int i, int n) { return i % 2 == 0 ? n + i + 1 : i; });
}
template <class V>
XFM_INLINE inline V outer(V u, V v) {
  return shuffled(u, v, [](int i, int n) { return i % 2 == 0 ? i : n + i; });
}
template <class V>
XFM_INLINE inline V inner(V u, V v) {
  return shuffled(u, v, [](int i, int n) { return i % 2 == 0 ? i + 1 : n + i - 1; });
}

template <class V>
XFM_INLINE inline V alternating(Element<V> even, Element<V> odd) {
  V v;
  for (int i = 0; i < lanes_of<V>; ++i) v[i] = i % 2 == 0 ? even : odd;
  return v;
}

/// Factors of an element in the even lanes, of its mirror image in the odd ones, whose imaginary parts are
/// negative: the mirror image has -i exp(3 i pi / (4 N)) conj(w).
template <class V>
struct Factors {
  V one, other;
  const Element<V>* w;

  explicit Factors(const Element<V>* table)
      : one(alternating<V>(1, table[1])), other(alternating<V>(0, table[0])), w(table + 2) {}
  XFM_INLINE void get(int n, V& re, V& im) const {
    const V pairs = load<V>(w + n), c = firsts(pairs, pairs), s = seconds(pairs, pairs);
    re = c * one - s * other;
    im = s * one + c * other;
  }
};

template <class V>
void before(const Element<V>* x, Element<V>* z, int length, const Element<V>* table) {
  const Factors<V> factors(table);
  const int end = length - lanes_of<V>;
  for (int n = 0; n < length / 2; n += lanes_of<V>) {
    V re, im;
    factors.get(n, re, im);
    const V front = load<V>(x + n), back = reversed(load<V>(x + end - n));
    const V u = front * re - back * im, v = front * im + back * re;
    store(z + n, firsts(u, v));
    store(z + end - n, pairs_reversed(seconds(u, v)));
  }
}

template <class V>
void after(const Element<V>* z, Element<V>* y, int length, const Element<V>* table) {
  const Factors<V> factors(table);
  const V signs = alternating<V>(1, -1);
  const int end = length - lanes_of<V>;
  for (int n = 0; n < length / 2; n += lanes_of<V>) {
    V re, im;
    factors.get(n, re, im);
    re *= signs;
    im *= signs;
    const V front = load<V>(z + n), back = pairs_reversed(load<V>(z + end - n));
    const V u = outer(front, back), v = inner(front, back);
    store(y + n, u * re - v * im);
    store(y + end - n, reversed(-(u * im) - v * re));
  }
}

/// The widest register of which two fit.
template <class Real, int lanes, class Call>
XFM_INLINE inline void widest(int length, const Call& call) {
  if constexpr (lanes > 2)
    if (length < 2 * lanes) return widest<Real, lanes / 2>(length, call);
  call(Vector<Real, lanes>());
}

// A single element is its own mirror image.

template <class Real>
void run_before(const Real* x, Real* z, int length, const Real* table) {
  if (length == 2) {
    const Real a = x[0], b = x[1], c = table[2], s = table[3];
    z[0] = a * c - b * s;
    z[1] = a * s + b * c;
    return;
  }
  widest<Real, kRegisterBytes / sizeof(Real)>(length,
                                              [&](auto v) { before<decltype(v)>(x, z, length, table); });
}

template <class Real>
void run_after(const Real* z, Real* y, int length, const Real* table) {
  if (length == 2) {
    const Real a = z[0], b = z[1], c = table[2], s = table[3];
    y[0] = a * c - b * s;
    y[1] = -a * s - b * c;
    return;
  }
  widest<Real, kRegisterBytes / sizeof(Real)>(length,
                                              [&](auto v) { after<decltype(v)>(z, y, length, table); });
}

}  // namespace

template <class Real>
Twist<Real> twist() {
  return {.loops = {before_in_loops<Real>, after_in_loops<Real>},
          .registers = {run_before<Real>, run_after<Real>}};
}
template Twist<float> twist<float>();
template Twist<double> twist<double>();

}  // namespace xfm::bench::XFM_TWIST_LEVEL
