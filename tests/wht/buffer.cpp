// The work buffer: its size, which bytes are used, and which buffers are valid.
#include <limits>
#include <set>

#include "tests/support/guarded.h"
#include "tests/support/reference.h"
#include "tests/wht/kernels.h"

namespace xfm::test {
namespace {

using Query = xfmStatus (*)(std::int32_t order, std::uint32_t* size);
constexpr Query queries[] = {xfmWHTGetBufferSize_32f, xfmWHTGetBufferSize_64f};

TEST(BufferSize, OfEveryOrder) {
  for (const int precision : {0, 1}) {
    for (int order = 1; order <= 13; ++order) {
      std::uint32_t size = 0xAAAAAAAA;
      EXPECT_EQ(queries[precision](order, &size), xfmStsOk);
      EXPECT_EQ(size, buffer_sizes[precision][order - 1]) << "order " << order;
    }
  }
}

// The order is checked first: the size is unchanged, and its pointer is not checked.
TEST(BufferSize, RefusesOtherOrders) {
  constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
  std::vector<std::int32_t> orders = {least, least + 1, std::numeric_limits<std::int32_t>::max()};
  for (std::int32_t order = -300; order <= 300; ++order)
    if (order < 1 || order > 13) orders.push_back(order);
  for (std::int32_t order = 1; order <= 13; ++order)
    for (const std::int32_t beyond : {1 << 8, 1 << 16, 1 << 24, 1 << 30, least})
      orders.push_back(order + beyond);
  for (const Query query : queries) {
    for (const std::int32_t order : orders) {
      std::uint32_t size = 0xAAAAAAAA;
      EXPECT_EQ(query(order, &size), xfmStsBadSize) << "order " << order;
      EXPECT_EQ(size, 0xAAAAAAAA) << "order " << order;
      EXPECT_EQ(attempt([&] { return query(order, nullptr); }), xfmStsBadSize) << "order " << order;
    }
  }
}

class Buffer : public KernelTest {
 protected:
  static std::size_t bytes() { return buffer_size(kernel()); }
  static bool is_used() { return kernel().length >= first_order_with_buffer; }
  static void fill(std::byte* buffer, std::byte value) { std::fill_n(buffer, bytes(), value); }
  /// Aligned arrays, and unaligned ones for the unaligned variant.
  void expect_every_byte_written(std::byte* buffer, int offset);
};

TEST_P(Buffer, CatalogueHasItsSize) {
  EXPECT_EQ(kernel().buffer_bytes, static_cast<int>(bytes()));
  EXPECT_EQ(is_used(), bytes() > 0);
}

// Two calls over different contents leave the same in the buffer: every byte was written.
void Buffer::expect_every_byte_written(std::byte* buffer, int offset) {
  Array src(kernel().precision, kernel().read, offset), dst(kernel().precision, kernel().written, offset);
  random.fill(src, Kind::ordinary);
  const Array expected = separate(src, XFM_SCALE_NONE);
  std::vector<std::byte> after[2];
  for (const int round : {0, 1}) {
    fill(buffer, round == 0 ? std::byte{0xAA} : std::byte{0x55});
    dst.fill(Poison::quiet_nan);
    ASSERT_EQ(run(kernel(), src.data(), dst.data(), XFM_SCALE_NONE, buffer), xfmStsOk);
    ASSERT_TRUE(same_bits(dst, expected)) << "offset " << offset;
    after[round].assign(buffer, buffer + bytes());
  }
  ASSERT_EQ(after[0], after[1]) << "not every byte of the buffer was written";
}

// A guard page follows the last byte, and then precedes the first.
TEST_P(Buffer, UsesEveryByteOfItsSizeAndNoOther) {
  Guarded region(bytes() + 1);
  for (std::byte* buffer : {region.end() - bytes(), region.begin()}) {
    std::fill(region.begin(), region.end(), std::byte{0x33});
    for (int offset = 0; offset < 16; offset += step())
      ASSERT_NO_FATAL_FAILURE(expect_every_byte_written(buffer, offset));
    const auto untouched = [](std::byte b) { return b == std::byte{0x33}; };
    ASSERT_TRUE(std::all_of(region.begin(), buffer, untouched)) << "wrote before the buffer";
    ASSERT_TRUE(std::all_of(buffer + bytes(), region.end(), untouched)) << "wrote after the buffer";
  }
}

TEST_P(Buffer, ContentsHaveNoEffect) {
  const Array src = random_input(Kind::wide);
  Array buffer(kernel().precision, static_cast<int>(bytes()) / step());
  for (const std::int32_t flag : flags) {
    const Array expected = separate(src, flag);
    buffer.fill(0.0);
    Array dst = output();
    ASSERT_EQ(run(kernel(), src.data(), dst.data(), flag, buffer.data()), xfmStsOk);
    ASSERT_TRUE(same_bits(dst, expected));
    for (const Poison pattern : poisons) {
      buffer.fill(pattern);
      dst.fill(Poison::bytes_aa);
      ASSERT_EQ(run(kernel(), src.data(), dst.data(), flag, buffer.data()), xfmStsOk);
      ASSERT_TRUE(same_bits(dst, expected)) << "flag " << flag;
    }
  }
}

TEST_P(Buffer, SmallOrdersIgnoreIt) {
  if (is_used()) return;
  Guarded nowhere(1);
  const Array src = random_input();
  const Array expected = separate(src, XFM_SCALE_BY_SQRT_N);
  for (void* buffer : {static_cast<void*>(nowhere.end()), static_cast<void*>(nowhere.end() + 1),
                       static_cast<void*>(nowhere.end() + 2000)}) {
    Array dst = output();
    ASSERT_EQ(run(kernel(), src.data(), dst.data(), XFM_SCALE_BY_SQRT_N, buffer), xfmStsOk);
    ASSERT_TRUE(same_bits(dst, expected));
  }
}

TEST_P(Buffer, RefusalsDoNotTouchIt) {
  Guarded nowhere(1);
  Array src = random_input(), dst = output();
  for (void* buffer : {static_cast<void*>(nowhere.end()), static_cast<void*>(nullptr)}) {
    EXPECT_EQ(run(kernel(), src.data(), dst.data(), 3, buffer), xfmStsBadScale);
    EXPECT_EQ(run(kernel(), nullptr, dst.data(), 3, buffer), xfmStsNullPtr);
    EXPECT_EQ(run(kernel(), src.data(), nullptr, 8, buffer), xfmStsNullPtr);
  }
}

TEST_P(Buffer, GenericPassesItOn) {
  for (const Generic& generic : catalogue::generics()) {
    if (std::string(generic.family) != kernel().family || std::string(generic.type) != kernel().type)
      continue;
    const Array src = random_input();
    Array dst = output(), buffer(kernel().precision, static_cast<int>(bytes()) / step());
    const auto call = [&](void* work, std::int32_t order) {
      return attempt(
          [&] { return generic.call_with_buffer(src.data(), dst.data(), order, XFM_SCALE_NONE, work); });
    };
    buffer.fill(Poison::quiet_nan);
    const Array before(buffer);
    ASSERT_EQ(call(buffer.data(), 14), xfmStsBadSize);
    ASSERT_TRUE(same_bits(buffer, before));
    ASSERT_EQ(call(buffer.data(), kernel().length), xfmStsOk);
    ASSERT_TRUE(same_bits(dst, separate(src, XFM_SCALE_NONE)));
    ASSERT_EQ(is_used(), !same_bits(buffer, before)) << "the buffer is used from order 8 on";
    return;
  }
  FAIL() << "no generic function";
}

// A mistake of the caller: a kernel that moves aligned registers faults at the first one, whatever the
// offset, and any other serves. Sanitizers report it in their own way.
#if !defined(__SANITIZE_ADDRESS__)
TEST_P(Buffer, MisalignedFaultsOrServes) {
  if (!is_used()) return;
  const Array src = random_input();
  const Array expected = separate(src, XFM_SCALE_NONE);
  Array dst = output(), buffer(kernel().precision, static_cast<int>(bytes()) / step() + 4);
  std::set<bool> outcomes;
  for (int offset = step(); offset < 16; offset += step()) {
    dst.fill(Poison::bytes_aa);
    const Array before(dst);
    const bool faulted = faults([&] {
      kernel().call_with_buffer(src.data(), dst.data(), XFM_SCALE_NONE,
                                static_cast<std::byte*>(buffer.data()) + offset);
    });
    EXPECT_TRUE(same_bits(dst, faulted ? before : expected)) << offset;
    outcomes.insert(faulted);
  }
  EXPECT_EQ(outcomes.size(), 1U) << "faults at some offsets and serves at others";
}
#endif

XFM_FOR_WALSH_HADAMARD_KERNELS(Buffer);

}  // namespace
}  // namespace xfm::test
