// Every kernel gives the bits of the loop nest: with every factor, at every alignment, with and without a
// work buffer from the caller, in place and with any overlap.
#include <algorithm>
#include <cmath>

#include "tests/bits/data.h"
#include "tests/bits/same_values.h"
#include "tests/support/reference.h"
#include "tests/wht/kernels.h"
#include "tests/wht/loop_nest.h"

namespace xfm::test {
namespace {

class LoopNest : public KernelTest {
 protected:
  LoopNest() : buffer_(kernel().precision, kernel().buffer_bytes / step()) {
    buffer_.fill(Poison::quiet_nan);
  }

  static double stored_factor(std::int32_t flag) {
    if (flag == XFM_SCALE_NONE) return 1;
    return flag == XFM_SCALE_BY_SQRT_N ? root_factor(kernel().precision, kernel().length)
                                       : std::ldexp(1.0, -kernel().length);
  }
  static Array expected(const Array& src, std::int32_t flag) { return loop_nest(src, stored_factor(flag)); }

  void* buffer(bool given) { return given ? buffer_.data() : nullptr; }
  void expect_at_offsets(const Array& data, std::int32_t flag, int src_offset, int dst_offset);

 private:
  Array buffer_;
};

void LoopNest::expect_at_offsets(const Array& data, std::int32_t flag, int src_offset, int dst_offset) {
  Array src(kernel().precision, kernel().read, src_offset);
  src.copy(data);
  const Array result = expected(data, flag);
  for (const bool given : {false, true}) {
    Array dst(kernel().precision, kernel().written, dst_offset);
    dst.fill(Poison::bytes_aa);
    ASSERT_EQ(run(kernel(), src.data(), dst.data(), flag, buffer(given)), xfmStsOk);
    ASSERT_TRUE(same_values(dst, result, Zeros::as_they_are))
        << "flag " << flag << ", src offset " << src_offset << ", dst offset " << dst_offset << ", buffer "
        << (given ? "valid" : "null");
  }
}

TEST_P(LoopNest, AnyDataFlagAlignmentAndBuffer) {
  for (const Data& data : all_data()) {
    const Array src = draw(data, random, kernel().precision, kernel().read);
    for (const std::int32_t flag : flags)
      for (int src_offset = 0; src_offset < 16; src_offset += step())
        for (int dst_offset = 0; dst_offset < 16; dst_offset += step())
          ASSERT_NO_FATAL_FAILURE(expect_at_offsets(src, flag, src_offset, dst_offset))
              << data.name << " data";
  }
}

TEST_P(LoopNest, InPlace) {
  for (const Data& data : all_data()) {
    const Array src = draw(data, random, kernel().precision, kernel().read);
    for (const std::int32_t flag : flags) {
      for (int offset = 0; offset < 16; offset += step()) {
        for (const bool given : {false, true}) {
          Array both(kernel().precision, kernel().read, offset);
          both.copy(src);
          ASSERT_EQ(run(kernel(), both.data(), both.data(), flag, buffer(given)), xfmStsOk);
          ASSERT_TRUE(same_values(both, expected(src, flag), Zeros::as_they_are))
              << data.name << " data, flag " << flag << ", offset " << offset << ", buffer "
              << (given ? "valid" : "null");
        }
      }
    }
  }
}

// dst at every distance at which it overlaps src, with flags and buffers alternating.
TEST_P(LoopNest, AnyOverlap) {
  const int n = kernel().read, positions = 16 / step();
  const Array src = random_input(Kind::wide);
  std::vector<Array> results;
  for (const std::int32_t flag : flags) results.push_back(expected(src, flag));
  Array block(kernel().precision, 3 * n + positions);
  for (int src_at = n; src_at < n + positions; ++src_at) {
    for (int shift = 1 - n; shift < n; ++shift) {
      const auto choice = static_cast<std::size_t>(shift + n) % results.size();
      std::copy_n(static_cast<const std::byte*>(src.data()), src.bytes(), block.at(src_at));
      ASSERT_EQ(
          run(kernel(), block.at(src_at), block.at(src_at + shift), flags[choice], buffer(shift % 3 == 0)),
          xfmStsOk);
      ASSERT_TRUE(same_bits(block.at(src_at + shift), results[choice].data(), kernel().precision, n))
          << "src at scalar " << src_at << ", dst " << shift << " scalars further, flag " << flags[choice];
    }
  }
}

TEST_P(LoopNest, FactorsAreAsRecorded) {
  for (const std::int32_t flag : flags)
    EXPECT_EQ(factor(kernel(), flag), stored_factor(flag)) << "flag " << flag;
  Array ones(kernel().precision, kernel().read), impulse(ones);
  ones.fill(1.0);
  impulse.fill(0.0);
  impulse.set(0, 1.0);
  for (const std::int32_t flag : flags) {
    const Array all = separate(impulse, flag), first = separate(ones, flag);
    for (int i = 0; i < kernel().points; ++i) {
      ASSERT_EQ(all[i], stored_factor(flag)) << "flag " << flag;
      ASSERT_EQ(first[i], i == 0 ? kernel().points * stored_factor(flag) : 0) << "flag " << flag;
    }
  }
}

// Applied twice it gives N times the input, apart from rounding: it has no direction.
TEST_P(LoopNest, IsItsOwnInverse) {
  const Array src = random_input();
  EXPECT_TRUE(same_bits(separate(src, XFM_SCALE_FWD_BY_N), separate(src, XFM_SCALE_INV_BY_N)));
  const double rounding = kernel().precision == Precision::binary32 ? 0x1p-24 : 0x1p-53;
  for (const auto& [first, second] :
       {std::pair{XFM_SCALE_NONE, XFM_SCALE_FWD_BY_N}, std::pair{XFM_SCALE_INV_BY_N, XFM_SCALE_NONE},
        std::pair{XFM_SCALE_BY_SQRT_N, XFM_SCALE_BY_SQRT_N}}) {
    const Array back = separate(separate(src, first), second);
    double error = 0, norm = 0;
    for (int i = 0; i < src.count(); ++i) {
      error += std::pow(back[i] - src[i], 2);
      norm += src[i] * src[i];
    }
    EXPECT_LE(std::sqrt(error / norm), (kernel().length + 4) * rounding)
        << "flags " << first << ", " << second;
  }
}

XFM_FOR_WALSH_HADAMARD_KERNELS(LoopNest);

TEST(WalshHadamard, HasAllOrders) { EXPECT_EQ(walsh_hadamard_kernels().size(), 26U); }

}  // namespace
}  // namespace xfm::test
