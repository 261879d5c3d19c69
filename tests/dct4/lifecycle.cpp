// The life of a state. This program replaces the core by one that counts, records requests, and can fail.
#include <gtest/gtest.h>

#include <cstring>

#include "tests/dct4/engine.h"
#include "tests/dct4/expected_plan.h"
#include "xfmcore.h"

namespace {

struct Core {
  int allocations = 0, releases = 0;
  std::size_t size = 0;
  void* block = nullptr;
  void* released = nullptr;
  std::uint64_t top_at_release = 0;
  bool fails = false;
} core;

}  // namespace

void* xfmMalloc(std::size_t size) {
  ++core.allocations;
  core.size = size;
  core.block = core.fails ? nullptr : std::aligned_alloc(64, (size + 63) / 64 * 64);
  return core.block;
}

void xfmFree(void* block) {
  ++core.releases;
  core.released = block;
  if (block != nullptr) std::memcpy(&core.top_at_release, block, sizeof core.top_at_release);
  std::free(block);
}

int ownGetFeature(int) { return 0; }

namespace xfm::test {
namespace {

template <class T>
class Lifecycle : public testing::Test {
 protected:
  Lifecycle() { core = {}; }
  using State = typename Engine<T>::State;
  /// The value of a pointer that no function has written.
  static State* unwritten() { return reinterpret_cast<State*>(&core); }
};
TYPED_TEST_SUITE(Lifecycle, Precisions, PrecisionName);

template <class T>
std::vector<std::int32_t> accepted() {
  std::vector<std::int32_t> lengths;
  for (int k = 1; k <= 18; ++k)
    for (const std::int32_t length : {1 << k, (1 << k) + 1})
      if (size_of<T>(length) != 0) lengths.push_back(length);
  return lengths;
}

TYPED_TEST(Lifecycle, AllocatesOnceAndReleasesOnce) {
  for (const std::int32_t length : accepted<TypeParam>()) {
    core = {};
    auto* state = this->unwritten();
    ASSERT_EQ(Engine<TypeParam>::init_alloc(&state, length), xfmStsOk);
    EXPECT_EQ(core.allocations, 1);
    EXPECT_EQ(core.size, size_of<TypeParam>(length));
    EXPECT_EQ(core.releases, 0);
    void* const block = core.block;
    const ExpectedPlan plan(length, sizeof(TypeParam), reinterpret_cast<std::uintptr_t>(block));
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(state), plan.start());

    const auto src = noise<TypeParam>(static_cast<std::size_t>(length) + 1);
    auto dst = src;
    ASSERT_EQ(Engine<TypeParam>::run(src.data(), dst.data(), state), xfmStsOk);
    EXPECT_EQ(core.allocations, 1) << "a run allocates";

    ASSERT_EQ(Engine<TypeParam>::free(state), xfmStsOk);
    EXPECT_EQ(core.releases, 1);
    EXPECT_EQ(core.released, block);
    EXPECT_EQ(core.top_at_release, plan.start()) << "length " << length << ": the arena is not empty";
  }
}

TYPED_TEST(Lifecycle, RefusedLengths) {
  for (const std::int32_t length : {3, 0, -1, 1, 34, 96, 192, INT32_MIN, INT32_MAX, 1 << 27, 1 << 28}) {
    auto* state = this->unwritten();
    EXPECT_EQ(Engine<TypeParam>::init_alloc(&state, length), xfmStsBadSize) << length;
    EXPECT_EQ(state, this->unwritten());
  }
  EXPECT_EQ(core.allocations, 0);
  EXPECT_EQ(core.releases, 0);
}

TYPED_TEST(Lifecycle, NoMemory) {
  core.fails = true;
  for (const std::int32_t length : {2, 32, 64, 4096, 1 << 30}) {
    const Core before = core;
    auto* state = this->unwritten();
    EXPECT_EQ(Engine<TypeParam>::init_alloc(&state, length), xfmStsNullPtr);
    EXPECT_EQ(state, this->unwritten());
    EXPECT_EQ(core.allocations, before.allocations + 1);
    EXPECT_EQ(core.size, size_of<TypeParam>(length)) << "a size that wrapped is requested as it is";
    EXPECT_EQ(core.releases, before.releases + 1);
    EXPECT_EQ(core.released, nullptr);
  }
}

TYPED_TEST(Lifecycle, NullPointers) {
  std::byte block[64 + 256];
  auto* state = this->unwritten();
  EXPECT_EQ(Engine<TypeParam>::init_alloc(nullptr, 64), xfmStsNullPtr);
  EXPECT_EQ(Engine<TypeParam>::init_alloc(nullptr, 3), xfmStsNullPtr) << "the pointer is checked first";
  EXPECT_EQ(Engine<TypeParam>::init(nullptr, 2, block), xfmStsNullPtr);
  EXPECT_EQ(Engine<TypeParam>::init(&state, 2, nullptr), xfmStsNullPtr);
  EXPECT_EQ(Engine<TypeParam>::init(&state, 3, nullptr), xfmStsNullPtr);
  EXPECT_EQ(Engine<TypeParam>::init(nullptr, 3, nullptr), xfmStsNullPtr);
  EXPECT_EQ(state, this->unwritten());
  EXPECT_EQ(Engine<TypeParam>::free(nullptr), xfmStsNullPtr);
  EXPECT_EQ(core.allocations, 0);
  EXPECT_EQ(core.releases, 0);
}

TYPED_TEST(Lifecycle, InitRefuses) {
  std::vector<std::byte> block(100000);
  const auto refused = sizeof(TypeParam) == 4 ? std::vector{3, 0, 1, -1, 6, 34, 48, 96, 192, 1000, 9, 17}
                                              : std::vector{3, 0, 1, -1, 6, 34, 48, 96, 192, 1000};
  for (const std::int32_t length : refused) {
    auto* state = this->unwritten();
    EXPECT_EQ(Engine<TypeParam>::init(&state, length, block.data()), xfmStsBadSize) << length;
    EXPECT_EQ(state, this->unwritten());
    // The block can be used again.
    EXPECT_EQ(Engine<TypeParam>::init(&state, 64, block.data()), xfmStsOk);
    const auto src = noise<TypeParam>(64);
    auto dst = src;
    EXPECT_EQ(Engine<TypeParam>::run(src.data(), dst.data(), state), xfmStsOk);
  }
  EXPECT_EQ(core.allocations, 0);
  EXPECT_EQ(core.releases, 0);
}

TYPED_TEST(Lifecycle, FreeEndsAStateInMemoryOfXfmMalloc) {
  void* const block = xfmMalloc(size_of<TypeParam>(256));
  auto* state = this->unwritten();
  ASSERT_EQ(Engine<TypeParam>::init(&state, 256, block), xfmStsOk);
  EXPECT_EQ(Engine<TypeParam>::free(state), xfmStsOk);
  EXPECT_EQ(core.released, block);
}

TYPED_TEST(Lifecycle, ABlockCanBeReused) {
  std::vector<std::byte> block(size_of<TypeParam>(8192));
  const auto src = noise<TypeParam>(8192);
  for (const std::int32_t length : {8192, 64, 2, 4096, 8192}) {
    auto* state = this->unwritten();
    ASSERT_EQ(Engine<TypeParam>::init(&state, length, block.data()), xfmStsOk);
    const auto n = static_cast<std::size_t>(length);
    std::vector<TypeParam> got(n), expected(n);
    ASSERT_EQ(Engine<TypeParam>::run(src.data(), got.data(), state), xfmStsOk);
    const Owned<TypeParam> fresh(length);
    ASSERT_EQ(fresh.run(src.data(), expected.data()), xfmStsOk);
    EXPECT_EQ(got, expected);
  }
}

}  // namespace
}  // namespace xfm::test
