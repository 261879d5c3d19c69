// Every function from several threads at once: on one input and the same tables, with outputs, buffers and
// states apart. A batch is shared out among the threads, as xfm_many.h says.
#include <array>
#include <memory>
#include <thread>

#include "tests/sanitized/memory.h"
#include "tools/many_catalogue.h"
#include "xfm_many.h"

namespace xfm::sanitized {
namespace {

using catalogue::Kernel;
using catalogue::Places;

constexpr int threads = 4;
constexpr int turns = 3;

template <class Work>
void on_all_threads(const Work& work) {
  std::array<std::thread, threads> all;
  for (int i = 0; i < threads; ++i) all[static_cast<std::size_t>(i)] = std::thread(work, i);
  for (std::thread& one : all) one.join();
}

/// Inputs that all threads read, and what one call of each kernel gives.
class Expected {
 public:
  Expected() {
    for (const Kernel& kernel : catalogue::kernels()) {
      Case& one = cases_[static_cast<std::size_t>(&kernel - catalogue::kernels().data())];
      one.src = std::make_unique<Scalars>(kernel.precision, kernel.read);
      one.dst = std::make_unique<Scalars>(kernel.precision, kernel.written);
      for (int i = 0; i < kernel.read; ++i) one.src->set(i, sample(i));
      require(kernel.call(one.src->data(), one.dst->data(), XFM_SCALE_NONE) == xfmStsOk, kernel.name,
              "status");
    }
  }
  const Scalars& src(const Kernel& kernel) const { return *of(kernel).src; }
  const Scalars& dst(const Kernel& kernel) const { return *of(kernel).dst; }

 private:
  struct Case {
    std::unique_ptr<Scalars> src, dst;
  };
  const Case& of(const Kernel& kernel) const {
    return cases_[static_cast<std::size_t>(&kernel - catalogue::kernels().data())];
  }
  std::unique_ptr<Case[]> cases_ = std::make_unique<Case[]>(catalogue::kernels().size());
};

void call_kernels() {
  const Expected expected;
  on_all_threads([&](int) {
    for (int turn = 0; turn < turns; ++turn) {
      for (const Kernel& kernel : catalogue::kernels()) {
        const Scalars dst(kernel.precision, kernel.written);
        require(kernel.call(expected.src(kernel).data(), dst.data(), XFM_SCALE_NONE) == xfmStsOk, kernel.name,
                "status");
        require(std::memcmp(dst.data(), expected.dst(kernel).data(), dst.bytes()) == 0, kernel.name,
                "other bits");
      }
    }
  });
}

/// Contiguous transforms, or one in each column.
void share_batch(const Kernel& kernel, bool columns) {
  constexpr std::int64_t share = 8, count = threads * share;
  const int parts = catalogue::scalars_of_element(kernel);
  const Places from = columns ? Places{count, 1} : Places{1, kernel.read / parts};
  const Places to = columns ? Places{count, 1} : Places{1, kernel.written / parts};
  const Scalars src(kernel.precision, count * kernel.read), dst(kernel.precision, count * kernel.written);
  const Scalars alone(kernel.precision, count * kernel.written);
  for (std::int64_t i = 0; i < src.count(); ++i) src.set(i, sample(i));
  const catalogue::Batch& batch = catalogue::batch(kernel);
  const auto call = [&](const Scalars& out, std::int64_t first, std::int64_t transforms) {
    const xfmStatus status =
        batch.call(src.at(first * from.distance * parts), from, out.at(first * to.distance * parts), to,
                   kernel.length, transforms, XFM_SCALE_BY_SQRT_N);
    require(status == xfmStsOk, batch.name, "status");
  };
  call(alone, 0, count);
  on_all_threads([&](int i) { call(dst, i * share, share); });
  require(std::memcmp(dst.data(), alone.data(), dst.bytes()) == 0, batch.name,
          "other bits than of one thread");
}

void call_batches() {
  for (const Kernel& kernel : catalogue::kernels())
    for (const bool columns : {false, true}) share_batch(kernel, columns);
}

/// States apart; up to 32 points one state may serve all, since it is only read.
template <class State, class T>
void call_dct4(xfmStatus (*init)(State**, std::int32_t), xfmStatus (*run)(const T*, T*, State*),
               xfmStatus (*free)(State*), catalogue::Precision precision) {
  for (std::int32_t length = 2; length <= 1 << 14; length *= 2) {
    const Scalars src(precision, length), expected(precision, length);
    for (std::int64_t i = 0; i < length; ++i) src.set(i, sample(i));
    State* shared = nullptr;
    require(init(&shared, length) == xfmStsOk, "xfmDCT4InitAlloc", "status");
    const auto* const from = reinterpret_cast<const T*>(src.data());
    require(run(from, reinterpret_cast<T*>(expected.data()), shared) == xfmStsOk, "xfmDCT4", "status");
    on_all_threads([&](int) {
      State* state = shared;
      if (length > 32) require(init(&state, length) == xfmStsOk, "xfmDCT4InitAlloc", "status");
      const Scalars dst(precision, length);
      for (int turn = 0; turn < turns; ++turn) {
        require(run(from, reinterpret_cast<T*>(dst.data()), state) == xfmStsOk, "xfmDCT4", "status");
        require(std::memcmp(dst.data(), expected.data(), dst.bytes()) == 0, "xfmDCT4", "other bits");
      }
      if (length > 32) free(state);
    });
    free(shared);
  }
}

}  // namespace
}  // namespace xfm::sanitized

int main() {
  using namespace xfm::sanitized;
  using xfm::catalogue::Precision;
  call_kernels();
  call_batches();
  call_dct4(xfmDCT4InitAlloc_32f, xfmDCT4_32f, xfmDCT4Free_32f, Precision::binary32);
  call_dct4(xfmDCT4InitAlloc_64f, xfmDCT4_64f, xfmDCT4Free_64f, Precision::binary64);
  std::puts("no difference");
}
