// Work buffers that the caller did not provide: one block of the stated size a call, released at its end.
// This program replaces the core by one whose blocks end at a guard page.
#include <memory>

#include "tests/support/guarded.h"
#include "tests/support/reference.h"
#include "tests/wht/kernels.h"
#include "xfmcore.h"

namespace {

struct Core {
  std::vector<std::size_t> asked;
  std::vector<void*> given, released;
  std::vector<std::unique_ptr<xfm::test::Guarded>> memory;
  bool exhausted = false;
};
Core core;

}  // namespace

void* xfmMalloc(std::size_t size) {
  core.asked.push_back(size);
  if (core.exhausted) return nullptr;
  core.memory.push_back(std::make_unique<xfm::test::Guarded>(size));
  core.given.push_back(core.memory.back()->end() - size);
  return core.given.back();
}

void xfmFree(void* block) { core.released.push_back(block); }

int ownGetFeature(int /*feature*/) { return 0; }

namespace xfm::test {
namespace {

class OwnBuffer : public KernelTest {
 protected:
  void SetUp() override { core = {}; }
  static bool is_used() { return kernel().length >= first_order_with_buffer; }

  static void expect_one_block(const char* of) {
    ASSERT_EQ(core.asked, std::vector<std::size_t>{buffer_size(kernel())}) << of;
    ASSERT_EQ(core.given.size(), 1U) << of;
    ASSERT_EQ(core.released, core.given) << of;
  }
  static void expect_none(const char* of) {
    ASSERT_TRUE(core.asked.empty()) << of;
    ASSERT_TRUE(core.released.empty()) << of;
  }
};

TEST_P(OwnBuffer, OneBlockACall) {
  for (int offset = 0; offset < 16; offset += step()) {
    for (const std::int32_t flag : flags) {
      Array src(kernel().precision, kernel().read, offset), dst = output();
      random.fill(src, Kind::ordinary);
      Array buffer(kernel().precision, kernel().buffer_bytes / step());
      core = {};
      ASSERT_EQ(run(kernel(), src.data(), dst.data(), flag, buffer.data()), xfmStsOk);
      ASSERT_NO_FATAL_FAILURE(expect_none("with a buffer"));
      Array again = output();
      ASSERT_EQ(run(kernel(), src.data(), again.data(), flag, nullptr), xfmStsOk);
      if (is_used())
        ASSERT_NO_FATAL_FAILURE(expect_one_block("without a buffer"));
      else
        ASSERT_NO_FATAL_FAILURE(expect_none("without a buffer"));
      ASSERT_TRUE(same_bits(again, dst));
    }
  }
}

TEST_P(OwnBuffer, RefusalsAskForNone) {
  for (int offset = 0; offset < 16; offset += step()) {
    Array src(kernel().precision, kernel().read, offset), dst = output();
    for (const std::int32_t flag : {0, 3, 5, 6, 7, 9, 16, -1})
      ASSERT_EQ(run(kernel(), src.data(), dst.data(), flag, nullptr), xfmStsBadScale);
    for (const std::int32_t flag : {1, 2, 4, 8, 3}) {
      ASSERT_EQ(run(kernel(), nullptr, dst.data(), flag, nullptr), xfmStsNullPtr);
      ASSERT_EQ(run(kernel(), src.data(), nullptr, flag, nullptr), xfmStsNullPtr);
    }
  }
  expect_none("refused");
}

TEST_P(OwnBuffer, GenericAsksOnce) {
  for (const Generic& generic : catalogue::generics()) {
    if (std::string(generic.family) != kernel().family || std::string(generic.type) != kernel().type)
      continue;
    const Array src = random_input();
    Array dst = output();
    ASSERT_EQ(run(generic, src.data(), dst.data(), 0, XFM_SCALE_NONE), xfmStsBadSize);
    ASSERT_EQ(run(generic, src.data(), dst.data(), 14, XFM_SCALE_NONE), xfmStsBadSize);
    ASSERT_NO_FATAL_FAILURE(expect_none("bad order"));
    ASSERT_EQ(run(generic, src.data(), dst.data(), kernel().length, XFM_SCALE_NONE), xfmStsOk);
    if (is_used())
      expect_one_block("generic");
    else
      expect_none("generic");
  }
}

// Kernels do not check for it: the program ends at the first store. Sanitizers report it in their own way.
#if !defined(__SANITIZE_ADDRESS__)
TEST_P(OwnBuffer, ExhaustedMemoryFaults) {
  if (!is_used()) return;
  const Array src = random_input();
  Array dst = output();
  dst.fill(Poison::bytes_aa);
  const Array before(dst);
  core.exhausted = true;
  EXPECT_TRUE(faults([&] { kernel().call_with_buffer(src.data(), dst.data(), XFM_SCALE_NONE, nullptr); }));
  EXPECT_EQ(core.asked.size(), 1U);
  EXPECT_TRUE(core.released.empty());
  EXPECT_TRUE(same_bits(dst, before)) << "dst was written";
}
#endif

XFM_FOR_WALSH_HADAMARD_KERNELS(OwnBuffer);

}  // namespace
}  // namespace xfm::test
