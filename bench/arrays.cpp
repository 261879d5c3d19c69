#include "bench/arrays.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <random>

namespace xfm::bench {

namespace {

constexpr std::size_t kPage = 4096;  // and the alignment of the memory

std::size_t round_up(std::size_t size, std::size_t unit) { return (size + unit - 1) / unit * unit; }

template <class Real>
void fill_with_noise(std::byte* array, int count) {
  std::mt19937 random(1);
  std::uniform_real_distribution<Real> noise(-1, 1);
  std::vector<Real> values(static_cast<std::size_t>(count));
  std::generate(values.begin(), values.end(), [&] { return noise(random); });
  std::memcpy(array, values.data(), values.size() * sizeof(Real));
}

template <class Real>
std::vector<double> as_binary64(const std::byte* array, int count) {
  std::vector<Real> values(static_cast<std::size_t>(count));
  std::memcpy(values.data(), array, values.size() * sizeof(Real));
  return {values.begin(), values.end()};
}

}  // namespace

void Arrays::Free::operator()(std::byte* memory) const { operator delete (memory, std::align_val_t{kPage}); }

Arrays::Arrays(const catalogue::Kernel& kernel, Placement placement)
    : precision_(kernel.precision), read_(kernel.read), written_(kernel.written) {
  const std::size_t scalar = precision_ == catalogue::Precision::binary32 ? sizeof(float) : sizeof(double);
  // One more for the unaligned start, and two for the zeros that a rival may store with a spectrum.
  const std::size_t array = scalar * static_cast<std::size_t>(std::max(read_, written_) + 3);
  // dst starts half a page past a multiple of pages: addresses that agree modulo 4096 would make loads wait
  // for unrelated stores.
  const std::size_t distance = placement.in_place ? 0 : round_up(array, kPage) + kPage / 2;
  const std::size_t to_buffer = round_up(distance + array, kPage) + kPage / 4;
  size_ = to_buffer + static_cast<std::size_t>(kernel.buffer_bytes);
  memory_.reset(static_cast<std::byte*>(operator new (size_, std::align_val_t{kPage})));
  src_ = memory_.get() + (placement.unaligned ? scalar : 0);
  dst_ = src_ + distance;
  buffer_ = kernel.buffer_bytes > 0 ? memory_.get() + to_buffer : nullptr;
  clear();
}

void Arrays::fill() {
  clear();
  if (precision_ == catalogue::Precision::binary32)
    fill_with_noise<float>(src_, read_);
  else
    fill_with_noise<double>(src_, read_);
}

void Arrays::clear() { std::memset(memory_.get(), 0, size_); }

std::vector<double> Arrays::output() const {
  return precision_ == catalogue::Precision::binary32 ? as_binary64<float>(dst_, written_)
                                                      : as_binary64<double>(dst_, written_);
}

}  // namespace xfm::bench
