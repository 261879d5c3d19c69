// Generic functions: the length is checked before anything else, and chooses the kernel.
#include <set>

#include "tests/support/bad_flags.h"
#include "tests/support/kernel_test.h"
#include "tests/support/reference.h"

namespace xfm::test {
namespace {

constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t greatest = std::numeric_limits<std::int32_t>::max();

class GenericContract : public GenericTest {
 protected:
  /// Lengths without a kernel in the family, near those that have one and far away.
  static std::set<std::int32_t> bad_lengths();
  /// The status must be -6 whatever the other arguments are, and nothing is written.
  void expect_bad_size(std::int32_t length);
};

std::set<std::int32_t> GenericContract::bad_lengths() {
  std::set<std::int32_t> lengths = {
      least, least + 1, greatest, greatest - 1, -1, 0, generic().lowest - 1, generic().highest + 1};
  for (std::int32_t length = -300; length <= 300; ++length) lengths.insert(length);
  // Cut to 8 or 16 bits, or without the sign, these are valid lengths.
  for (int length = generic().lowest; length <= generic().highest; ++length) {
    for (const std::int32_t beyond : {1 << 8, 1 << 16, 1 << 24, 1 << 30, least})
      lengths.insert(length + beyond);
    lengths.insert(-length);
  }
  std::erase_if(lengths, [&](std::int32_t length) { return kernel_of(length) != nullptr; });
  return lengths;
}

void GenericContract::expect_bad_size(std::int32_t length) {
  const Precision precision =
      std::string(generic().type).starts_with("32") ? Precision::binary32 : Precision::binary64;
  Array src = random.array(precision, 4 * generic().highest);
  Array dst(precision, src.count());
  const Array src_before(src);
  for (const Poison pattern : poisons) {
    dst.fill(pattern);
    const Array dst_before(dst);
    for (const std::int32_t flag : {1, 2, 4, 8, 0, 3, -1, 16}) {
      for (const bool src_null : {false, true}) {
        for (const bool dst_null : {false, true}) {
          ASSERT_EQ(
              run(generic(), src_null ? nullptr : src.data(), dst_null ? nullptr : dst.data(), length, flag),
              xfmStsBadSize)
              << "length " << length << ", flag " << flag << (src_null ? ", src null" : "")
              << (dst_null ? ", dst null" : "");
        }
      }
    }
    ASSERT_TRUE(same_bits(dst, dst_before)) << "dst was written, length " << length;
  }
  ASSERT_TRUE(same_bits(src, src_before)) << "src was written, length " << length;
}

TEST_P(GenericContract, RefusesLengthsBeforeAnythingElse) {
  for (const std::int32_t length : bad_lengths()) ASSERT_NO_FATAL_FAILURE(expect_bad_size(length));
}

XFM_FOR_ALL_GENERICS(GenericContract);

class GenericEqualsDirect : public KernelTest {
 protected:
  void SetUp() override {
    for (const Generic& candidate : catalogue::generics()) {
      if (std::string(candidate.family) == kernel().family && std::string(candidate.type) == kernel().type)
        generic_ = &candidate;
    }
    ASSERT_NE(generic_, nullptr) << "the family has no generic function";
  }
  const Generic& generic() const { return *generic_; }

 private:
  const Generic* generic_ = nullptr;
};

TEST_P(GenericEqualsDirect, SameBits) {
  EXPECT_GE(kernel().length, generic().lowest);
  EXPECT_LE(kernel().length, generic().highest);
  for (int offset = 0; offset < 16; offset += step()) {
    Array src(kernel().precision, kernel().read, offset), dst = output();
    random.fill(src, Kind::wide);
    for (const std::int32_t flag : flags) {
      dst.fill(Poison::quiet_nan);
      ASSERT_EQ(run(generic(), src.data(), dst.data(), kernel().length, flag), xfmStsOk);
      ASSERT_TRUE(same_bits(dst, separate(src, flag))) << "flag " << flag << ", src offset " << offset;
    }
  }
}

TEST_P(GenericEqualsDirect, SameRefusals) {
  Array src = random_input(), dst = output();
  dst.fill(Poison::signalling_nan);
  const Array before(dst);
  for (const std::int32_t flag : bad_flags()) {
    ASSERT_EQ(run(generic(), src.data(), dst.data(), kernel().length, flag), xfmStsBadScale)
        << "flag " << flag;
    ASSERT_EQ(run(generic(), nullptr, dst.data(), kernel().length, flag), xfmStsNullPtr) << "flag " << flag;
    ASSERT_EQ(run(generic(), src.data(), nullptr, kernel().length, flag), xfmStsNullPtr) << "flag " << flag;
  }
  EXPECT_TRUE(same_bits(dst, before)) << "dst was written";
}

XFM_FOR_ALL_KERNELS(GenericEqualsDirect);

// The catalogue itself has every kernel once and under its right name.
TEST(Catalogue, NamesAndShapes) {
  std::set<std::string> names;
  for (const Kernel& kernel : catalogue::kernels()) {
    EXPECT_EQ(kernel.name,
              "xfm" + std::string(kernel.family) + "_" + std::to_string(kernel.length) + "_" + kernel.type);
    EXPECT_TRUE(names.insert(kernel.name).second) << kernel.name << " is listed twice";
    EXPECT_EQ(kernel.precision == Precision::binary32, std::string(kernel.type).starts_with("32"))
        << kernel.name;
    EXPECT_GT(kernel.read, 0) << kernel.name;
    EXPECT_GT(kernel.written, 0) << kernel.name;
  }
  for (const Generic& generic : catalogue::generics()) {
    EXPECT_EQ(generic.name, "xfm" + std::string(generic.family) + "_" + generic.type);
    EXPECT_TRUE(names.insert(generic.name).second) << generic.name << " is listed twice";
  }
  EXPECT_FALSE(names.empty());
}

}  // namespace
}  // namespace xfm::test
