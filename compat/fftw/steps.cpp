#include "steps.h"

#include <algorithm>
#include <cstdlib>
#include <new>

#include "ours.h"

namespace {

/// A full set of lanes in either precision and on every target.
constexpr std::ptrdiff_t kChunk = 16;
constexpr std::ptrdiff_t kMostReals = 2 * (XFM_DFT_MAX_LENGTH / 2 + 1);

/// Places of the area on the stack: transforms side by side, as they are in a batch's lanes, unless FFTW's
/// side is contiguous or there is only one.
struct Area {
  Area(std::ptrdiff_t their_stride, std::ptrdiff_t their_distance, std::ptrdiff_t elements,
       std::ptrdiff_t count)
      : lanes(count > 1 && std::abs(their_distance) < std::abs(their_stride)),
        stride(lanes ? kChunk : 1),
        distance(lanes ? 1 : elements) {}

  bool lanes;
  std::ptrdiff_t stride, distance;
};

/// Calls move(element, transform) in the order in which memory is best visited.
template <class Move>
void for_each(const Area& area, std::size_t elements, std::ptrdiff_t count, Move move) {
  if (area.lanes) {
    for (std::size_t e = 0; e < elements; ++e)
      for (std::ptrdiff_t t = 0; t < count; ++t) move(e, t);
  } else {
    for (std::ptrdiff_t t = 0; t < count; ++t)
      for (std::size_t e = 0; e < elements; ++e) move(e, t);
  }
}

int length(const Step& step) { return static_cast<int>(step.transform.n); }

}  // namespace

void run_complex(const Step& step, const Real* in, Real* out) {
  const auto& [n, is, os] = step.transform;
  step.complex(reinterpret_cast<const Complex*>(in), is / 2, step.batch.is / 2,
               reinterpret_cast<Complex*>(out), os / 2, step.batch.os / 2, static_cast<int>(n), step.batch.n,
               XFM_SCALE_NONE);
}

void run_real(const Step& step, const Real* in, Real* out) {
  const auto& [n, is, os] = step.transform;
  step.real(in, is, step.batch.is, out, os, step.batch.os, static_cast<int>(n), step.batch.n, XFM_SCALE_NONE);
}

void run_scattered(const Step& step, const Real* in, Real* out) {
  Real room[kChunk * kMostReals];
  const std::size_t elements = step.places.size();
  const Area area(step.transform.os, step.batch.os, static_cast<std::ptrdiff_t>(elements), step.batch.n);
  for (std::ptrdiff_t first = 0; first < step.batch.n; first += kChunk) {
    const std::ptrdiff_t count = std::min(kChunk, step.batch.n - first);
    Real* const to = out + first * step.batch.os;
    step.real(in + first * step.batch.is, step.transform.is, step.batch.is, room, area.stride, area.distance,
              length(step), count, XFM_SCALE_NONE);
    for_each(area, elements, count, [&](std::size_t e, std::ptrdiff_t t) {
      to[t * step.batch.os + step.places[e]] =
          room[static_cast<std::ptrdiff_t>(e) * area.stride + t * area.distance];
    });
  }
}

void run_gathered(const Step& step, const Real* in, Real* out) {
  Real room[kChunk * kMostReals];
  const std::size_t elements = step.places.size();
  const Area area(step.transform.is, step.batch.is, static_cast<std::ptrdiff_t>(elements), step.batch.n);
  for (std::ptrdiff_t first = 0; first < step.batch.n; first += kChunk) {
    const std::ptrdiff_t count = std::min(kChunk, step.batch.n - first);
    const Real* const from = in + first * step.batch.is;
    for_each(area, elements, count, [&](std::size_t e, std::ptrdiff_t t) {
      room[static_cast<std::ptrdiff_t>(e) * area.stride + t * area.distance] =
          from[t * step.batch.is + step.places[e]];
    });
    step.real(room, area.stride, area.distance, out + first * step.batch.os, step.transform.os, step.batch.os,
              length(step), count, XFM_SCALE_NONE);
  }
}

// The transforms of one contiguous array after the other, whose half-complex order differs from Pack's:
// R(0), R(1), I(1), R(2), .. there, R(0), R(1), R(2), .., I(2), I(1) here.

void run_to_halfcomplex(const Step& step, const Real* in, Real* out) {
  const std::ptrdiff_t n = step.transform.n;
  for (std::ptrdiff_t t = 0; t < step.batch.n; ++t, in += step.batch.is, out += step.batch.os) {
    Real pack[XFM_DFT_MAX_LENGTH];
    step.kernel.real(in, pack, XFM_SCALE_NONE);
    out[0] = pack[0];
    for (std::ptrdiff_t k = 1; 2 * k < n; ++k) {
      out[k] = pack[2 * k - 1];
      out[n - k] = pack[2 * k];
    }
    if (n % 2 == 0) out[n / 2] = pack[n - 1];
  }
}

void run_from_halfcomplex(const Step& step, const Real* in, Real* out) {
  const std::ptrdiff_t n = step.transform.n;
  for (std::ptrdiff_t t = 0; t < step.batch.n; ++t, in += step.batch.is, out += step.batch.os) {
    Real pack[XFM_DFT_MAX_LENGTH];
    pack[0] = in[0];
    for (std::ptrdiff_t k = 1; 2 * k < n; ++k) {
      pack[2 * k - 1] = in[k];
      pack[2 * k] = in[n - k];
    }
    if (n % 2 == 0) pack[n - 1] = in[n / 2];
    step.kernel.real(pack, out, XFM_SCALE_NONE);
  }
}

namespace {

/// The DST-IV is the DCT-IV of the reversed input, with alternating signs of the output.
void reverse(const Real* in, Real* out, std::ptrdiff_t n) {
  if (in == out)
    std::reverse(out, out + n);
  else
    std::reverse_copy(in, in + n, out);
}

}  // namespace

void run_dct4(const Step& step, const Real* in, Real* out) {
  const std::ptrdiff_t n = step.transform.n;
  Dct4State* const state = step.states->take();
  for (std::ptrdiff_t t = 0; t < step.batch.n; ++t) {
    const Real* const from = in + t * step.batch.is;
    Real* const to = out + t * step.batch.os;
    if (step.sine) reverse(from, to, n);
    dct4_functions().run(step.sine ? to : from, to, state);
    const Real odd = step.sine ? -2 : 2;  // FFTW's transforms are twice the DCT-IV and the DST-IV
    for (std::ptrdiff_t k = 0; k < n; k += 2) {
      to[k] *= 2;
      to[k + 1] *= odd;
    }
  }
  step.states->give(state);
}

Dct4States::Dct4States(int length) : length_(length) { give(take()); }

Dct4States::~Dct4States() {
  for (Dct4State* const state : free_) dct4_functions().free(state);
}

Dct4State* Dct4States::take() {
  {
    const std::lock_guard lock(mutex_);
    if (!free_.empty()) {
      Dct4State* const state = free_.back();
      free_.pop_back();
      return state;
    }
    free_.reserve(++made_);  // so that giving it back cannot fail
  }
  Dct4State* state = nullptr;
  if (dct4_functions().init(&state, length_) != xfmStsOk) throw std::bad_alloc();
  return state;
}

void Dct4States::give(Dct4State* state) noexcept {
  const std::lock_guard lock(mutex_);
  free_.push_back(state);
}
