// Every function, in heap blocks of exactly the sizes that the header names. What is not read is not
// initialised either, and the program branches on every number that is written, which the memory sanitizer
// watches.
#include "tests/dct4/functions.h"
#include "tests/sanitized/memory.h"
#include "tools/many_catalogue.h"
#include "xfm_many.h"

namespace xfm::sanitized {
namespace {

using catalogue::Generic;
using catalogue::Kernel;
using catalogue::Places;

long calls = 0;

void expect(xfmStatus got, xfmStatus expected, const char* function) {
  ++calls;
  require(got == expected, function, "status");
}

void fill(const Kernel& kernel, const Scalars& src) {
  for (int i = 0; i < kernel.read; ++i)
    if (!is_unread(kernel, i)) src.set(i, sample(i));
}

void require_finite(const Kernel& kernel, const Scalars& dst) {
  for (int i = 0; i < kernel.written; ++i) require(is_finite(dst.get(i)), kernel.name, "not finite");
}

void call_apart(const Kernel& kernel, std::int32_t flag, int src_offset, int dst_offset) {
  const Scalars src(kernel.precision, kernel.read, src_offset),
      dst(kernel.precision, kernel.written, dst_offset);
  fill(kernel, src);
  expect(kernel.call(src.data(), dst.data(), flag), xfmStsOk, kernel.name);
  require_finite(kernel, dst);
}

void call_in_place(const Kernel& kernel, std::int32_t flag) {
  const Scalars both(kernel.precision, kernel.read > kernel.written ? kernel.read : kernel.written);
  fill(kernel, both);
  expect(kernel.call(both.data(), both.data(), flag), xfmStsOk, kernel.name);
  require_finite(kernel, both);
}

void call_with_buffer(const Kernel& kernel, std::int32_t flag) {
  const Scalars src(kernel.precision, kernel.read), dst(kernel.precision, kernel.written);
  const int size = kernel.precision == catalogue::Precision::binary32 ? 4 : 8;
  const Scalars buffer(kernel.precision, kernel.buffer_bytes / size);
  fill(kernel, src);
  void* const work = kernel.buffer_bytes > 0 ? buffer.data() : nullptr;
  expect(kernel.call_with_buffer(src.data(), dst.data(), flag, work), xfmStsOk, kernel.name);
  require_finite(kernel, dst);
}

void call_refused(const Kernel& kernel) {
  const Scalars src(kernel.precision, 0), dst(kernel.precision, 0);
  expect(kernel.call(src.data(), dst.data(), 3), xfmStsBadScale, kernel.name);
  expect(kernel.call(nullptr, dst.data(), 3), xfmStsNullPtr, kernel.name);
  expect(kernel.call(src.data(), nullptr, 3), xfmStsNullPtr, kernel.name);
}

void call_kernels() {
  for (const Kernel& kernel : catalogue::kernels()) {
    const int step = kernel.precision == catalogue::Precision::binary32 ? 4 : 8;
    for (const std::int32_t flag : flags) {
      for (const int src_offset : {0, step})
        for (const int dst_offset : {0, step}) call_apart(kernel, flag, src_offset, dst_offset);
      call_in_place(kernel, flag);
      if (kernel.call_with_buffer != nullptr) call_with_buffer(kernel, flag);
    }
    call_refused(kernel);
  }
}

void call_generics() {
  for (const Kernel& kernel : catalogue::kernels()) {
    for (const Generic& generic : catalogue::generics()) {
      if (std::strcmp(generic.family, kernel.family) != 0 || std::strcmp(generic.type, kernel.type) != 0)
        continue;
      const Scalars src(kernel.precision, kernel.read), dst(kernel.precision, kernel.written);
      fill(kernel, src);
      expect(generic.call(src.data(), dst.data(), kernel.length, XFM_SCALE_NONE), xfmStsOk, generic.name);
      require_finite(kernel, dst);
      expect(generic.call(src.data(), dst.data(), generic.lowest - 1, XFM_SCALE_NONE), xfmStsBadSize,
             generic.name);
      expect(generic.call(src.data(), dst.data(), generic.highest + 1, XFM_SCALE_NONE), xfmStsBadSize,
             generic.name);
    }
  }
}

/// The scalars of a batch, of which those between elements stay uninitialised.
class Transforms {
 public:
  Transforms(const Kernel& kernel, int scalars, Places places, std::int64_t count)
      : kernel_(kernel),
        parts_(catalogue::scalars_of_element(kernel)),
        size_(scalars / parts_),
        count_(count),
        places_(places),
        scalars_(kernel.precision, (last() + 1) * parts_) {}

  std::byte* data() const { return scalars_.data(); }
  void fill() const {
    each([&](std::int64_t place, int i) {
      if (!is_unread(kernel_, i)) scalars_.set(place, sample(place));
    });
  }
  void require_finite() const {
    each([&](std::int64_t place, int) {
      require(is_finite(scalars_.get(place)), kernel_.name, "batch not finite");
    });
  }

 private:
  std::int64_t last() const { return (count_ - 1) * places_.distance + (size_ - 1) * places_.stride; }
  /// Calls use(place in memory, scalar of the transform).
  template <class Use>
  void each(Use use) const {
    for (std::int64_t t = 0; t < count_; ++t)
      for (int i = 0; i < size_ * parts_; ++i)
        use((t * places_.distance + i / parts_ * places_.stride) * parts_ + i % parts_, i);
  }

  const Kernel& kernel_;
  int parts_, size_;
  std::int64_t count_;
  Places places_;
  Scalars scalars_;
};

void call_batch(const Kernel& kernel, std::int64_t count, Places from, Places to) {
  const Transforms src(kernel, kernel.read, from, count), dst(kernel, kernel.written, to, count);
  src.fill();
  const catalogue::Batch& batch = catalogue::batch(kernel);
  expect(batch.call(src.data(), from, dst.data(), to, kernel.length, count, XFM_SCALE_BY_SQRT_N), xfmStsOk,
         batch.name);
  dst.require_finite();
}

void call_batches() {
  for (const Kernel& kernel : catalogue::kernels()) {
    const int parts = catalogue::scalars_of_element(kernel);
    const std::int64_t read = kernel.read / parts, written = kernel.written / parts;
    for (const std::int64_t count : {1, 5, 19}) {
      const Places in[] = {{count, 1}, {1, read}, {2, 2 * read + 1}};
      const Places out[] = {{count, 1}, {1, written}, {2, 2 * written + 1}};
      for (const Places& from : in)
        for (const Places& to : out) call_batch(kernel, count, from, to);
    }
  }
}

void call_sizes() {
  for (std::int32_t order = 0; order <= 14; ++order) {
    std::uint32_t size;
    const xfmStatus expected = order >= 1 && order <= 13 ? xfmStsOk : xfmStsBadSize;
    expect(xfmWHTGetBufferSize_32f(order, &size), expected, "xfmWHTGetBufferSize_32f");
    if (expected == xfmStsOk) require(size < 1 << 17, "xfmWHTGetBufferSize_32f", "size");
    expect(xfmWHTGetBufferSize_64f(order, &size), expected, "xfmWHTGetBufferSize_64f");
    if (expected == xfmStsOk) require(size < 1 << 17, "xfmWHTGetBufferSize_64f", "size");
  }
  require(xfmGetLibVersion()->major == 6, "xfmGetLibVersion", "version");
  ++calls;
}

template <class T>
constexpr auto precision_of = sizeof(T) == 4 ? catalogue::Precision::binary32
                                             : catalogue::Precision::binary64;

template <class T>
void run(typename test::Engine<T>::State* state, std::int32_t length) {
  const Scalars src(precision_of<T>, length), dst(precision_of<T>, length);
  for (std::int64_t i = 0; i < length; ++i) src.set(i, sample(i));
  const auto* const from = reinterpret_cast<const T*>(src.data());
  for (int turn = 0; turn < 2; ++turn)
    expect(test::Engine<T>::run(from, reinterpret_cast<T*>(dst.data()), state), xfmStsOk, "xfmDCT4");
  expect(test::Engine<T>::run(from, reinterpret_cast<T*>(src.data()), state), xfmStsOk, "xfmDCT4 in place");
  for (std::int64_t i = 0; i < length; ++i)
    require(is_finite(dst.get(i)) && dst.get(i) == src.get(i), "xfmDCT4", "results differ");
}

template <class T>
void call_dct4() {
  for (std::int32_t length = 2; length <= 1 << 16; length *= 2) {
    std::int32_t size;
    expect(test::Engine<T>::get_size(length, &size), xfmStsOk, "xfmDCT4GetSize");
    for (const int offset : {0, 1, 16}) {
      // Of two halves of all addresses, which differ in bit 31, shortest states need a little more in one.
      auto* const block = static_cast<std::byte*>(std::malloc(static_cast<std::size_t>(size + offset + 23)));
      typename test::Engine<T>::State* state = nullptr;
      expect(test::Engine<T>::init(&state, length, block + offset), xfmStsOk, "xfmDCT4Init");
      run<T>(state, length);
      std::free(block);
    }
    typename test::Engine<T>::State* state = nullptr;
    expect(test::Engine<T>::init_alloc(&state, length), xfmStsOk, "xfmDCT4InitAlloc");
    run<T>(state, length);
    expect(test::Engine<T>::free(state), xfmStsOk, "xfmDCT4Free");
  }
}

}  // namespace
}  // namespace xfm::sanitized

int main() {
  using namespace xfm::sanitized;
  call_kernels();
  call_generics();
  call_batches();
  call_sizes();
  call_dct4<float>();
  call_dct4<double>();
  std::printf("%ld calls\n", calls);
}
