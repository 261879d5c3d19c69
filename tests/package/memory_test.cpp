// The three functions of the core.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>
#include <set>
#include <vector>

#include "xfmcore.h"

namespace {

struct Free {
  void operator()(void* block) const { xfmFree(block); }
};
using Block = std::unique_ptr<void, Free>;

Block allocate(std::size_t size) { return Block(xfmMalloc(size)); }

bool on_a_line(const Block& block) { return reinterpret_cast<std::uintptr_t>(block.get()) % 64 == 0; }

constexpr std::size_t most = std::numeric_limits<std::size_t>::max();

TEST(Memory, BlocksOfEverySizeAreAlignedAndUsable) {
  for (std::size_t size = 1; size <= 4100; ++size) {
    const Block block = allocate(size);
    ASSERT_NE(block, nullptr) << size;
    ASSERT_TRUE(on_a_line(block)) << size;
    std::memset(block.get(), 0xAA, size);
  }
}

TEST(Memory, LargeBlocksAreAlignedAndUsable) {
  for (std::size_t size = 1U << 13; size <= 1U << 26; size *= 2) {
    for (const std::size_t odd : {size - 1, size, size + 1}) {
      const Block block = allocate(odd);
      ASSERT_NE(block, nullptr) << odd;
      ASSERT_TRUE(on_a_line(block)) << odd;
      static_cast<unsigned char*>(block.get())[odd - 1] = 0xAA;
    }
  }
}

TEST(Memory, LiveBlocksShareNoByte) {
  constexpr std::size_t longest = 500;
  std::vector<Block> blocks;
  for (std::size_t size = 1; size <= longest; ++size) {
    blocks.push_back(allocate(size));
    std::memset(blocks.back().get(), static_cast<int>(size % 256), size);
  }
  for (std::size_t size = 1; size <= longest; ++size) {
    const std::vector<unsigned char> expected(size, static_cast<unsigned char>(size % 256));
    EXPECT_EQ(std::memcmp(blocks[size - 1].get(), expected.data(), size), 0) << size;
  }
}

TEST(Memory, BlocksOfSizeZeroAreBlocks) {
  std::vector<Block> blocks;
  std::set<void*> addresses;
  for (int i = 0; i < 100; ++i) {
    blocks.push_back(allocate(0));
    ASSERT_NE(blocks.back(), nullptr);
    EXPECT_TRUE(on_a_line(blocks.back()));
    addresses.insert(blocks.back().get());
  }
  EXPECT_EQ(addresses.size(), blocks.size());
}

TEST(Memory, ImpossibleRequestsGiveNull) {
  for (const std::size_t size : {most, most - 1, most - 62, most - 63, most - 64, most / 2 + 1, most / 2}) {
    EXPECT_EQ(allocate(size), nullptr) << size;
  }
}

TEST(Memory, FreeTakesNull) { xfmFree(nullptr); }

TEST(Feature, NoneIsKnown) {
  for (int feature = -1000; feature <= 1000; ++feature) EXPECT_EQ(ownGetFeature(feature), 0) << feature;
  EXPECT_EQ(ownGetFeature(std::numeric_limits<int>::min()), 0);
  EXPECT_EQ(ownGetFeature(std::numeric_limits<int>::max()), 0);
}

}  // namespace
