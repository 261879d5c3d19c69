// Statuses of batches and their order, and what a call must not touch.
#include <cstring>

#include "tests/many/roads.h"
#include "tests/support/bad_flags.h"
#include "tests/support/guarded.h"
#include "tests/support/kernel_test.h"
#include "tests/support/reference.h"

namespace xfm::catalogue {
void PrintTo(const Batch& batch, std::ostream* out) { *out << batch.name; }
}  // namespace xfm::catalogue

namespace xfm::test {
namespace {

using catalogue::Batch;

class ManyContract : public testing::TestWithParam<Batch> {
 protected:
  static constexpr Places contiguous{1, 66};
  static constexpr std::int64_t count = 5;

  struct Arguments {
    bool src_null = false, dst_null = false;
    std::int32_t length = GetParam().highest;
    std::int64_t count = 5;
    std::int32_t flag = XFM_SCALE_NONE;
  };

  /// Any access would fault.
  static void expect(xfmStatus status, const Arguments& arguments) {
    static const Guarded nowhere(1);
    std::byte* const inside_guard = nowhere.end();
    EXPECT_EQ(attempt([&] {
                return GetParam().call(arguments.src_null ? nullptr : inside_guard, contiguous,
                                       arguments.dst_null ? nullptr : inside_guard, contiguous,
                                       arguments.length, arguments.count, arguments.flag);
              }),
              status)
        << GetParam().name << ", length " << arguments.length << ", count " << arguments.count << ", flag "
        << arguments.flag;
  }
};

TEST_P(ManyContract, LengthsComeFirst) {
  for (const std::int32_t length :
       {GetParam().lowest - 1, GetParam().highest + 1, -GetParam().lowest, GetParam().lowest + 256,
        std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()}) {
    for (const bool null : {false, true})
      for (const std::int64_t n : {std::int64_t{-1}, std::int64_t{0}, count})
        for (const std::int32_t flag : {8, 3})
          expect(xfmStsBadSize,
                 {.src_null = null, .dst_null = null, .length = length, .count = n, .flag = flag});
  }
}

TEST_P(ManyContract, ThenNegativeCounts) {
  for (const int length : {GetParam().lowest, GetParam().highest}) {
    for (const std::int64_t n : {std::int64_t{-1}, std::int64_t{-8}, -(std::int64_t{1} << 32),
                                 std::numeric_limits<std::int64_t>::min()}) {
      for (const bool null : {false, true})
        for (const std::int32_t flag : {8, 3})
          expect(xfmStsBadSize,
                 {.src_null = null, .dst_null = null, .length = length, .count = n, .flag = flag});
    }
  }
}

TEST_P(ManyContract, ThenNullPointers) {
  for (const int length : {GetParam().lowest, GetParam().highest}) {
    for (const std::int64_t n : {std::int64_t{0}, count}) {
      for (const std::int32_t flag : {8, 3}) {
        expect(xfmStsNullPtr, {.src_null = true, .length = length, .count = n, .flag = flag});
        expect(xfmStsNullPtr, {.dst_null = true, .length = length, .count = n, .flag = flag});
        expect(xfmStsNullPtr,
               {.src_null = true, .dst_null = true, .length = length, .count = n, .flag = flag});
      }
    }
  }
}

TEST_P(ManyContract, ThenFlags) {
  for (const int length : {GetParam().lowest, GetParam().highest})
    for (const std::int32_t flag : bad_flags())
      for (const std::int64_t n : {std::int64_t{0}, count})
        expect(xfmStsBadScale, {.length = length, .count = n, .flag = flag});
}

TEST_P(ManyContract, NoTransformsTouchNothing) {
  for (int length = GetParam().lowest; length <= GetParam().highest; ++length)
    for (const std::int32_t flag : flags) expect(xfmStsOk, {.length = length, .count = 0, .flag = flag});
}

INSTANTIATE_TEST_SUITE_P(All, ManyContract, testing::ValuesIn(catalogue::batches()), ByName());

// Between guard pages, at both ends, with src write-protected.
class ManyMemory : public KernelTest {
 protected:
  static std::size_t bytes(std::int64_t size, int count) {
    return static_cast<std::size_t>(size) * static_cast<std::size_t>(count) *
           static_cast<std::size_t>(step());
  }
};

TEST_P(ManyMemory, StaysBetweenTheGuards) {
  const int parts = catalogue::scalars_of_element(kernel()), read = kernel().read / parts,
            written = kernel().written / parts;
  for (const int count : {1, 3, 8, 13}) {
    Guarded from(bytes(kernel().read, count)), to(bytes(kernel().written, count));
    for (const bool lanes : {false, true}) {
      const Places in = lanes ? Places{count, 1} : Places{1, read},
                   out = lanes ? Places{count, 1} : Places{1, written};
      for (const bool at_end : {false, true}) {
        std::byte* const src = at_end ? from.end() - bytes(kernel().read, count) : from.begin();
        std::byte* const dst = at_end ? to.end() - bytes(kernel().written, count) : to.begin();
        from.allow_writing();
        const Array data = random.array(kernel().precision, kernel().read * count);
        std::memcpy(src, data.data(), data.bytes());
        from.forbid_writing();
        ASSERT_EQ(attempt([&] {
                    return catalogue::batch(kernel()).call(src, in, dst, out, kernel().length, count,
                                                           XFM_SCALE_NONE);
                  }),
                  xfmStsOk)
            << count << " transforms" << (lanes ? " in lanes" : "") << (at_end ? " at the end" : "");
      }
    }
  }
}

XFM_FOR_ALL_KERNELS(ManyMemory);

}  // namespace
}  // namespace xfm::test
