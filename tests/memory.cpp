// Which memory a call touches: only the two arrays, and src only to read.
#include <algorithm>
#include <memory>

#include "tests/support/guarded.h"
#include "tests/support/kernel_test.h"
#include "tests/support/reference.h"

namespace xfm::test {
namespace {

/// The place of an array between two guard pages: next to either, or one scalar away, where a packed kernel
/// takes its unaligned variant.
enum class Place { first, after_first, before_last, last };
constexpr Place places[] = {Place::first, Place::after_first, Place::before_last, Place::last};

class Memory : public KernelTest {
 protected:
  static std::byte* put(const Guarded& region, Place place, int count) {
    const int bytes = count * step();
    switch (place) {
      case Place::first:
        return region.begin();
      case Place::after_first:
        return region.begin() + step();
      case Place::before_last:
        return region.end() - bytes - step();
      default:
        return region.end() - bytes;
    }
  }
  static std::size_t room(int count) { return static_cast<std::size_t>((count + 1) * step()); }
  /// With src write-protected, both between guard pages: what surrounds dst must stay unchanged.
  void expect_inside(Guarded& from, Guarded& to, Place src_place, Place dst_place);
};

void Memory::expect_inside(Guarded& from, Guarded& to, Place src_place, Place dst_place) {
  const Array data = random_input();
  std::byte* src = put(from, src_place, kernel().read);
  std::byte* dst = put(to, dst_place, kernel().written);
  const auto region_scalars = static_cast<int>(to.end() - to.begin()) / step();
  from.allow_writing();
  std::copy_n(static_cast<const std::byte*>(data.data()), data.bytes(), src);
  from.forbid_writing();
  for (const std::int32_t flag : flags) {
    poison(kernel().precision, to.begin(), region_scalars, Poison::bytes_aa);
    ASSERT_EQ(run(kernel(), src, dst, flag), xfmStsOk);
    ASSERT_TRUE(same_bits(dst, separate(data, flag).data(), kernel().precision, kernel().written));
    const auto untouched = [](std::byte b) { return b == std::byte{0xAA}; };
    ASSERT_TRUE(std::all_of(to.begin(), dst, untouched)) << "wrote before dst";
    ASSERT_TRUE(std::all_of(dst + std::ptrdiff_t{kernel().written} * step(), to.end(), untouched))
        << "wrote after dst";
  }
}

TEST_P(Memory, StaysBetweenTheGuards) {
  Guarded from(room(kernel().read)), to(room(kernel().written));
  for (const Place src_place : places) {
    for (const Place dst_place : places) {
      ASSERT_NO_FATAL_FAILURE(expect_inside(from, to, src_place, dst_place))
          << "src place " << static_cast<int>(src_place) << ", dst place " << static_cast<int>(dst_place);
    }
  }
}

TEST_P(Memory, RefusalsTouchNeitherArray) {
  Guarded nowhere(1);
  std::byte* inside_guard = nowhere.end();
  for (const int offset : {0, step()})
    EXPECT_EQ(run(kernel(), inside_guard + offset, inside_guard + 64, 3), xfmStsBadScale);
}

// Aligned arrays whose last register they fill only in part. No page ends there, but the address sanitizer
// watches the heap to the byte; without it this is an ordinary call.
TEST_P(Memory, StaysInsideExactHeapBlocks) {
  const auto aligned_new = [&](int count) {
    return std::unique_ptr<std::byte[], void (*)(std::byte*)>(
        static_cast<std::byte*>(
            ::operator new (static_cast<std::size_t>(count * step()), std::align_val_t{16})),
        [](std::byte* block) { ::operator delete (block, std::align_val_t{16}); });
  };
  const auto src = aligned_new(kernel().read), dst = aligned_new(kernel().written);
  const Array data = random_input();
  std::copy_n(static_cast<const std::byte*>(data.data()), data.bytes(), src.get());
  ASSERT_EQ(run(kernel(), src.get(), dst.get(), XFM_SCALE_NONE), xfmStsOk);
  EXPECT_TRUE(
      same_bits(dst.get(), separate(data, XFM_SCALE_NONE).data(), kernel().precision, kernel().written));
}

XFM_FOR_ALL_KERNELS(Memory);

}  // namespace
}  // namespace xfm::test
