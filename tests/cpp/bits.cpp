// Every call of the C++ header is the C function of its name: the same bits, in everything that it writes.
#include "tests/cpp/calls.h"
#include "tests/support/kernel_test.h"
#include "tests/support/reference.h"

namespace xfm::test {
namespace {

class Cpp : public KernelTest {};

TEST_P(Cpp, HasTheBitsOfC) {
  ASSERT_TRUE(calls().contains(kernel().name)) << "no such call";
  const Calls& call = calls().at(kernel().name);
  for (const std::int32_t flag : flags) {
    const Array src = random_input();
    Array expected = output(), fixed = output(), sized = output();
    for (Array* array : {&expected, &fixed, &sized}) array->fill(Poison::bytes_aa);
    ASSERT_EQ(run(kernel(), src.data(), expected.data(), flag), xfmStsOk);
    call.fixed(src.data(), fixed.data(), scale{flag});
    ASSERT_EQ(call.sized(src.data(), sized.data(), static_cast<std::size_t>(kernel().length), scale{flag}),
              status::ok);
    EXPECT_TRUE(same_bits(fixed, expected)) << "flag " << flag;
    EXPECT_TRUE(same_bits(sized, expected)) << "flag " << flag << ", length at run time";
  }
}

XFM_FOR_ALL_KERNELS(Cpp);

TEST(CppCalls, AreAllInTheCatalogue) { EXPECT_EQ(calls().size(), catalogue::kernels().size()); }

}  // namespace
}  // namespace xfm::test
