// Functions that allocate nothing: kernels, generic functions and batches, whose callers provide the work
// buffer of those that need one, queries, and a DCT-IV in memory of the caller. Memory is exhausted while
// they run.
#include <algorithm>
#include <string>

#include "tests/support/counted_malloc.h"
#include "tests/support/guarded.h"
#include "tests/support/kernel_test.h"
#include "tests/support/reference.h"
#include "tools/many_catalogue.h"
#include "xfm_many.h"
#include "xfmcore.h"

namespace xfm::test {
namespace {

/// The status of a call that ran without memory. What asks for some fails the test.
template <class Call>
xfmStatus without_memory(const Call& call) {
  long asked = 0;
  const xfmStatus status = attempt([&] {
    const long before = allocations().asked;
    fail_all_allocations();
    const xfmStatus result = call();
    fail_allocation(-1);
    asked = allocations().asked - before;
    return result;
  });
  fail_allocation(-1);
  EXPECT_EQ(asked, 0) << "allocations";
  return status;
}

#define XFM_SKIP_UNLESS_COUNTED() \
  if (!XFM_COUNTS_ALLOCATIONS) GTEST_SKIP() << "a sanitizer owns malloc"

constexpr std::int32_t served_and_not[] = {1, 2, 4, 8, 3};

xfmStatus expected(std::int32_t flag) { return flag == 3 ? xfmStsBadScale : xfmStsOk; }

class Allocation : public KernelTest {
 protected:
  void SetUp() override { XFM_SKIP_UNLESS_COUNTED(); }

  /// The work buffer, or null where there is none.
  void* work() { return kernel().buffer_bytes > 0 ? buffer_.data() : nullptr; }

 private:
  Array buffer_{kernel().precision, kernel().buffer_bytes / step()};
};

TEST_P(Allocation, NoneByKernels) {
  for (int offset = 0; offset < 16; offset += step()) {
    Array src(kernel().precision, kernel().read, offset), dst = output();
    random.fill(src, Kind::ordinary);
    for (const std::int32_t flag : served_and_not)
      ASSERT_EQ(without_memory([&] {
                  return work() == nullptr ? kernel().call(src.data(), dst.data(), flag)
                                           : kernel().call_with_buffer(src.data(), dst.data(), flag, work());
                }),
                expected(flag))
          << "flag " << flag << ", offset " << offset;
  }
}

TEST_P(Allocation, NoneByGenericFunctions) {
  for (const Generic& generic : catalogue::generics()) {
    if (std::string(generic.family) != kernel().family || std::string(generic.type) != kernel().type)
      continue;
    const Array src = random_input();
    Array dst = output();
    for (const std::int32_t flag : served_and_not)
      ASSERT_EQ(without_memory([&] {
                  return generic.call_with_buffer == nullptr
                             ? generic.call(src.data(), dst.data(), kernel().length, flag)
                             : generic.call_with_buffer(src.data(), dst.data(), kernel().length, flag,
                                                        work());
                }),
                expected(flag));
  }
}

/// A batch with its work buffer; the catalogue's have none.
using catalogue::Places;

xfmStatus call_batch(const Kernel& kernel, const void* src, Places from, void* dst, Places to,
                     std::int64_t count, void* buffer) {
  if (std::string(kernel.family) != "WHT")
    return catalogue::batch(kernel).call(src, from, dst, to, kernel.length, count, XFM_SCALE_NONE);
  if (kernel.precision == Precision::binary32)
    return xfmManyWHT_32f(static_cast<const float*>(src), from.stride, from.distance,
                          static_cast<float*>(dst), to.stride, to.distance, kernel.length, count,
                          XFM_SCALE_NONE, buffer);
  return xfmManyWHT_64f(static_cast<const double*>(src), from.stride, from.distance,
                        static_cast<double*>(dst), to.stride, to.distance, kernel.length, count,
                        XFM_SCALE_NONE, buffer);
}

TEST_P(Allocation, NoneByBatches) {
  constexpr int count = 19;
  const int parts = catalogue::scalars_of_element(kernel());
  const int read = kernel().read / parts, written = kernel().written / parts;
  const Array src = random.array(kernel().precision, count * kernel().read);
  Array dst(kernel().precision, count * kernel().written);
  for (const Places& from : {Places{1, read}, Places{count, 1}})
    for (const Places& to : {Places{1, written}, Places{count, 1}})
      ASSERT_EQ(without_memory(
                    [&] { return call_batch(kernel(), src.data(), from, dst.data(), to, count, work()); }),
                xfmStsOk);
}

XFM_FOR_ALL_KERNELS(Allocation);

template <class State, class T>
struct Dct4 {
  xfmStatus (*get_size)(std::int32_t, std::int32_t*);
  xfmStatus (*init)(State**, std::int32_t, void*);
  xfmStatus (*run)(const T*, T*, State*);
};

template <class State, class T>
void expect_no_allocation(const Dct4<State, T>& dct4) {
  XFM_SKIP_UNLESS_COUNTED();
  for (std::int32_t length = 2; length <= 1 << 16; length *= 2) {
    std::int32_t size = 0;
    ASSERT_EQ(without_memory([&] { return dct4.get_size(length, &size); }), xfmStsOk);
    std::vector<std::byte> block(static_cast<std::size_t>(size + 32));
    std::vector<T> src(static_cast<std::size_t>(length), T{1}), dst(src);
    State* state = nullptr;
    ASSERT_EQ(without_memory([&] { return dct4.init(&state, length, block.data()); }), xfmStsOk);
    ASSERT_EQ(without_memory([&] { return dct4.run(src.data(), dst.data(), state); }), xfmStsOk);
  }
}

TEST(NoAllocation, DCT4OfTheCaller32f) {
  expect_no_allocation(Dct4<xfmDCT4State_32f, float>{xfmDCT4GetSize_32f, xfmDCT4Init_32f, xfmDCT4_32f});
}
TEST(NoAllocation, DCT4OfTheCaller64f) {
  expect_no_allocation(Dct4<xfmDCT4State_64f, double>{xfmDCT4GetSize_64f, xfmDCT4Init_64f, xfmDCT4_64f});
}

TEST(NoAllocation, Queries) {
  XFM_SKIP_UNLESS_COUNTED();
  std::uint32_t size = 0;
  for (std::int32_t order = 1; order <= 13; ++order) {
    EXPECT_EQ(without_memory([&] { return xfmWHTGetBufferSize_32f(order, &size); }), xfmStsOk);
    EXPECT_EQ(without_memory([&] { return xfmWHTGetBufferSize_64f(order, &size); }), xfmStsOk);
  }
  EXPECT_EQ(without_memory([] { return xfmGetLibVersion()->major; }), 6);
  EXPECT_EQ(without_memory([] { return ownGetFeature(128); }), 0);
}

// The counter sees an allocation of the core, so that a zero above means something.
TEST(NoAllocation, IsSeenByTheCounter) {
  XFM_SKIP_UNLESS_COUNTED();
  const long before = allocations().asked;
  void* const block = xfmMalloc(10);
  const long after = allocations().asked;
  xfmFree(block);
  ASSERT_NE(block, nullptr);
  EXPECT_EQ(after, before + 1);
}

}  // namespace
}  // namespace xfm::test
