// Neither the alignment of the arrays nor any overlap between them changes a bit: every input is read before
// the first output is written, and the aligned body and the unaligned variant do the same arithmetic.
#include <algorithm>

#include "tests/support/kernel_test.h"
#include "tests/support/reference.h"

namespace xfm::test {
namespace {

class Placement : public KernelTest {
 protected:
  static void expect_same_at_any_offset(const Array& data, std::int32_t flag);

  static int reach() { return std::max(kernel().read, kernel().written); }
  /// Scalars between two multiples of 16 bytes.
  static int positions() { return 16 / step(); }
};

/// Calls inside one block of memory, src at one scalar and dst at another. The whole block must end up as if
/// the output, made in separate arrays, had been copied over it. A block serves many calls: between them it
/// holds the byte AA throughout, and only the two arrays are put in and cleared again.
class Overlay {
 public:
  Overlay(const Kernel& kernel, int count)
      : kernel_(kernel), block_(kernel.precision, count), expected_(block_) {
    block_.fill(Poison::bytes_aa);
    expected_.fill(Poison::bytes_aa);
  }

  void expect(const Array& src, const Array& result, int src_at, int dst_at, std::int32_t flag) {
    put(src, block_, src_at);
    put(src, expected_, src_at);
    put(result, expected_, dst_at);
    ASSERT_EQ(run(kernel_, block_.at(src_at), block_.at(dst_at), flag), xfmStsOk);
    ASSERT_TRUE(same_bits(block_, expected_)) << "in a block of memory: src at scalar " << src_at
                                              << ", dst at scalar " << dst_at << ", flag " << flag;
    for (Array* const memory : {&block_, &expected_}) {
      clear(*memory, src_at, src.count());
      clear(*memory, dst_at, result.count());
    }
  }

 private:
  static void put(const Array& array, Array& memory, int at) {
    std::copy_n(static_cast<const std::byte*>(array.data()), array.bytes(), memory.at(at));
  }
  static void clear(Array& memory, int at, int count) {
    poison(memory.precision(), memory.at(at), count, Poison::bytes_aa);
  }

  const Kernel& kernel_;
  Array block_, expected_;
};

void Placement::expect_same_at_any_offset(const Array& data, std::int32_t flag) {
  const Array expected = separate(data, flag);
  for (int src_offset = 0; src_offset < 16; src_offset += step()) {
    for (int dst_offset = 0; dst_offset < 16; dst_offset += step()) {
      Array src(kernel().precision, kernel().read, src_offset);
      Array dst(kernel().precision, kernel().written, dst_offset);
      src.copy(data);
      dst.fill(Poison::quiet_nan);
      ASSERT_EQ(run(kernel(), src.data(), dst.data(), flag), xfmStsOk);
      ASSERT_TRUE(same_bits(dst, expected))
          << "flag " << flag << ", src offset " << src_offset << ", dst offset " << dst_offset;
      ASSERT_TRUE(same_bits(src, data)) << "src was written";
    }
  }
}

TEST_P(Placement, AnyAlignment) {
  for (const Kind kind : kinds) {
    for (int round = 0; round < 8; ++round) {
      const Array data = random_input(kind);
      for (const std::int32_t flag : flags)
        ASSERT_NO_FATAL_FAILURE(expect_same_at_any_offset(data, flag))
            << to_string(kind) << " data, round " << round;
    }
  }
}

TEST_P(Placement, InPlace) {
  Overlay block(kernel(), 3 * reach() + positions());
  for (const Kind kind : kinds) {
    const Array src = random_input(kind);
    for (const std::int32_t flag : flags) {
      const Array result = separate(src, flag);
      for (int at = 0; at < positions(); ++at)
        ASSERT_NO_FATAL_FAILURE(block.expect(src, result, reach() + at, reach() + at, flag));
    }
  }
}

TEST_P(Placement, AnyOverlap) {
  const Array src = random_input();
  const Array result = separate(src, XFM_SCALE_BY_SQRT_N);
  Overlay block(kernel(), 3 * reach() + positions());
  for (int at = 0; at < positions(); ++at) {
    const int src_at = reach() + at;
    for (int shift = -reach(); shift <= reach(); ++shift)
      ASSERT_NO_FATAL_FAILURE(block.expect(src, result, src_at, src_at + shift, XFM_SCALE_BY_SQRT_N));
  }
}

XFM_FOR_ALL_KERNELS(Placement);

}  // namespace
}  // namespace xfm::test
