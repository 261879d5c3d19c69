// The plan in memory: every object, field and list in its place, for every length and at any address.
#include <gtest/gtest.h>
#include <sys/mman.h>

#include <cstring>
#include <set>

#include "tests/dct4/engine.h"
#include "tests/dct4/expected_plan.h"
#include "tests/support/guarded.h"

namespace xfm::test {
namespace {

std::uint64_t address(const void* p) { return reinterpret_cast<std::uintptr_t>(p); }
template <class T>
T content(std::uint64_t at) {
  T value;
  std::memcpy(&value, reinterpret_cast<const void*>(at), sizeof value);  // NOLINT(performance-no-int-to-ptr)
  return value;
}

/// Fresh memory where bit 31 of every address is set, or clear.
class Region {
 public:
  Region(std::size_t bytes, bool high) : bytes_(bytes) {
    for (std::uint64_t at = (1ULL << 40) + (high ? 0x90000000 : 0x10000000); start_ == nullptr;
         at += 1ULL << 32) {
      void* const wanted = reinterpret_cast<void*>(at);  // NOLINT(performance-no-int-to-ptr)
      void* const got = mmap(wanted, bytes, PROT_READ | PROT_WRITE,
                             MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED_NOREPLACE | MAP_NORESERVE, -1, 0);
      if (got == wanted) start_ = static_cast<std::byte*>(got);
      if (got != wanted && got != MAP_FAILED) munmap(got, bytes);
      if (at > 1ULL << 45) throw std::runtime_error("no room in the address space");
    }
  }
  ~Region() { munmap(start_, bytes_); }
  Region(const Region&) = delete;
  Region& operator=(const Region&) = delete;
  std::byte* start() const { return start_; }

 private:
  std::size_t bytes_;
  std::byte* start_ = nullptr;
};

template <class T>
std::vector<std::int32_t> accepted(int longest) {
  std::vector<std::int32_t> lengths;
  for (int k = 1; k <= longest; ++k)
    for (const std::int32_t length : {1 << k, (1 << k) + 1})
      if (size_of<T>(length) != 0) lengths.push_back(length);
  return lengths;
}

/// Each kind of object has operations of its own; only destructors may be shared.
void expect_operations(const ExpectedPlan& plan) {
  std::map<std::string, std::uint64_t> known;
  std::set<std::uint64_t> distinct;
  for (const auto& [name, at] : plan.operations()) {
    const auto [kind, is_new] = known.emplace(name, content<std::uint64_t>(at));
    EXPECT_NE(kind->second, 0U) << name;
    EXPECT_EQ(kind->second, content<std::uint64_t>(at)) << name;
    if (is_new && !name.ends_with("destroy")) {
      EXPECT_TRUE(distinct.insert(kind->second).second) << name << " is shared";
    }
  }
}

template <class T>
void expect_plan(std::int32_t length, std::byte* block) {
  SCOPED_TRACE(testing::Message() << "length " << length << ", block at " << static_cast<void*>(block));
  typename Engine<T>::State* state = nullptr;
  ASSERT_EQ(Engine<T>::init(&state, length, block), xfmStsOk);
  const ExpectedPlan plan(length, sizeof(T), address(block));
  EXPECT_EQ(address(state), plan.start());
  EXPECT_EQ(content<std::uint64_t>(address(block)), plan.top()) << "the arena's top";
  for (const auto& [at, word] : plan.words())
    ASSERT_EQ(content<std::uint32_t>(at), word) << at - address(block) << " bytes into the block";
  expect_operations(plan);
}

XFM_FOR_BOTH_PRECISIONS(Plan);

TYPED_TEST(Plan, EveryField) {
  for (const bool high : {false, true}) {
    const Region region(1 << 26, high);
    for (const std::int32_t length : accepted<TypeParam>(20))
      for (const int offset : {0, 1, 8, 16, 24, 31, 32, 33, 63})
        ASSERT_NO_FATAL_FAILURE(expect_plan<TypeParam>(length, region.start() + offset));
  }
}

// The longest plan. Its work areas are never touched, so their pages never exist.
TYPED_TEST(Plan, EveryFieldOfLongPlans) {
  for (const int k : {21, 22, 23}) {
    const Region region(size_of<TypeParam>(1 << k), true);
    ASSERT_NO_FATAL_FAILURE(expect_plan<TypeParam>(1 << k, region.start()));
  }
}

TYPED_TEST(Plan, FirstObject) {
  const Region low(1 << 16, false), high(1 << 16, true);
  for (int offset = 0; offset < 96; ++offset) {
    typename Engine<TypeParam>::State* state = nullptr;
    ASSERT_EQ(Engine<TypeParam>::init(&state, 64, low.start() + offset), xfmStsOk);
    EXPECT_EQ(address(state), address(low.start()) + static_cast<unsigned>(offset / 32 * 32) + 64) << offset;
    ASSERT_EQ(Engine<TypeParam>::init(&state, 64, high.start() + offset), xfmStsOk);
    EXPECT_EQ(address(state), address(high.start()) + static_cast<unsigned>((offset + 31) / 32 * 32) + 64)
        << offset;
  }
}

// The query counts more cells than the plan takes, the same number for each split.
TYPED_TEST(Plan, MarginOfTheQuery) {
  const Region region(1 << 26, false);
  for (const std::int32_t length : accepted<TypeParam>(20)) {
    typename Engine<TypeParam>::State* state = nullptr;
    ASSERT_EQ(Engine<TypeParam>::init(&state, length, region.start()), xfmStsOk);
    const ExpectedPlan plan(length, sizeof(TypeParam), address(region.start()));
    const bool base = plan.tables().empty();
    const auto margin = base ? 0U : 224U + 160U * static_cast<unsigned>(plan.splits());
    EXPECT_EQ(plan.top() - plan.start(), size_of<TypeParam>(length) - 64 - margin) << length;
  }
}

TYPED_TEST(Plan, NumberOfSplits) {
  for (const auto& [k, splits] :
       std::map<int, int>{{5, 0}, {6, 0}, {11, 0}, {12, 1}, {16, 1}, {17, 2}, {20, 2}, {21, 2}, {22, 3}})
    EXPECT_EQ(ExpectedPlan(1 << k, sizeof(TypeParam), 0).splits(), splits) << k;
}

/// Init and run in a block of exactly the stated size, which ends at a guard page.
TYPED_TEST(Plan, StaysInTheBlock) {
  for (const std::int32_t length : accepted<TypeParam>(17)) {
    const std::size_t size = size_of<TypeParam>(length);
    const Guarded region(size + 64);
    for (const int back : {0, 1, 3, 8, 16, 31, 32, 33}) {
      std::byte* const block = region.end() - size - back;
      // At such an address a base length may take a little more.
      if (size == 256 && (address(block) >> 31 & 1) != 0 && address(block) % 32 != 0) continue;
      std::memset(region.begin(), 0xAA, static_cast<std::size_t>(region.end() - region.begin()));
      typename Engine<TypeParam>::State* state = nullptr;
      ASSERT_EQ(Engine<TypeParam>::init(&state, length, block), xfmStsOk);
      if ((length & (length - 1)) == 0) {
        const auto src = noise<TypeParam>(static_cast<std::size_t>(length));
        std::vector<TypeParam> dst(src.size());
        ASSERT_EQ(Engine<TypeParam>::run(src.data(), dst.data(), state), xfmStsOk);
      }
      for (const std::byte* at = region.begin(); at < block; ++at) ASSERT_EQ(*at, std::byte{0xAA}) << length;
      for (const std::byte* at = block + size; at < region.end(); ++at)
        ASSERT_EQ(*at, std::byte{0xAA}) << length;
    }
  }
}

// The bytes that a base length takes beyond the stated size, at the addresses where that happens.
TYPED_TEST(Plan, BaseLengthsWithBit31) {
  const Region region(1 << 16, true);
  for (const int offset : {0, 1, 16, 31}) {
    std::memset(region.start(), 0xAA, 4096);
    typename Engine<TypeParam>::State* state = nullptr;
    ASSERT_EQ(Engine<TypeParam>::init(&state, 32, region.start() + offset), xfmStsOk);
    const std::uint64_t end = content<std::uint64_t>(address(region.start()) + static_cast<unsigned>(offset));
    EXPECT_EQ(end, address(region.start()) + (offset == 0 ? 256 : 288));
    // The last list head ends its 24 bytes before that.
    EXPECT_EQ(content<std::uint64_t>(end - 8), 0xAAAAAAAAAAAAAAAA);
    EXPECT_NE(content<std::uint64_t>(end - 16), 0xAAAAAAAAAAAAAAAA);
  }
}

/// A run changes nothing of the state but the work areas.
TYPED_TEST(Plan, RunsChangeTheWorkAreasOnly) {
  for (const std::int32_t length : accepted<TypeParam>(19)) {
    if ((length & (length - 1)) != 0) continue;
    const std::size_t size = size_of<TypeParam>(length);
    std::vector<std::uint64_t> memory(size / 8 + 8);
    typename Engine<TypeParam>::State* state = nullptr;
    ASSERT_EQ(Engine<TypeParam>::init(&state, length, memory.data()), xfmStsOk);
    const ExpectedPlan plan(length, sizeof(TypeParam), address(memory.data()));
    const auto before = memory;
    const auto src = noise<TypeParam>(static_cast<std::size_t>(length));
    std::vector<TypeParam> dst(src.size());
    ASSERT_EQ(Engine<TypeParam>::run(src.data(), dst.data(), state), xfmStsOk);
    for (std::size_t i = 0; i < memory.size(); ++i) {
      if (memory[i] == before[i]) continue;
      const std::uint64_t at = address(&memory[i]);
      auto area = plan.work_areas().upper_bound(at);
      ASSERT_NE(area, plan.work_areas().begin()) << length << ": changed before the work areas";
      --area;
      ASSERT_LT(at, area->first + area->second) << length << ": changed outside the work areas";
    }
  }
}

}  // namespace
}  // namespace xfm::test
