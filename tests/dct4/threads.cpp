// Eight threads under the thread sanitizer: with a state each, or with one state of a base length for all.
#include <gtest/gtest.h>

#include <thread>

#include "tests/dct4/engine.h"

namespace xfm::test {
namespace {

constexpr unsigned thread_count = 8;

/// Runs the work on all threads at once; GoogleTest's checks stay on this one.
template <class Work>
void on_all_threads(const Work& work) {
  std::vector<std::thread> threads;
  for (unsigned i = 0; i < thread_count; ++i) threads.emplace_back([&work, i] { work(i); });
  for (std::thread& thread : threads) thread.join();
}

XFM_FOR_BOTH_PRECISIONS(Threads);

TYPED_TEST(Threads, AStateEach) {
  for (const std::int32_t length : {64, 2048, 4096, 131072}) {
    const auto n = static_cast<std::size_t>(length);
    const auto src = noise<TypeParam>(n);
    std::vector<std::vector<TypeParam>> results(thread_count, std::vector<TypeParam>(n));
    on_all_threads([&](unsigned i) {
      typename Engine<TypeParam>::State* state = nullptr;
      if (Engine<TypeParam>::init_alloc(&state, length) != xfmStsOk) return;
      for (int run = 0; run < 3; ++run) Engine<TypeParam>::run(src.data(), results[i].data(), state);
      Engine<TypeParam>::free(state);
    });
    std::vector<TypeParam> expected(n);
    const Owned<TypeParam> alone(length);
    ASSERT_EQ(alone.run(src.data(), expected.data()), xfmStsOk);
    for (const auto& result : results) EXPECT_EQ(result, expected) << length;
  }
}

TYPED_TEST(Threads, OneStateOfABaseLength) {
  for (const std::int32_t length : {2, 4, 8, 16, 32}) {
    const auto n = static_cast<std::size_t>(length);
    const auto src = noise<TypeParam>(n);
    const Owned<TypeParam> shared(length);
    std::vector<std::vector<TypeParam>> results(thread_count, std::vector<TypeParam>(n));
    on_all_threads([&](unsigned i) {
      for (int run = 0; run < 100; ++run) shared.run(src.data(), results[i].data());
    });
    for (const auto& result : results) EXPECT_EQ(result, results.front());
  }
}

}  // namespace
}  // namespace xfm::test
