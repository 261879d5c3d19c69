// Every generated kernel equals its network, as the interpreter runs it, to the bit. A kernel that fails here
// was written or compiled wrongly; one that only fails elsewhere has a wrong network.
#include "gen/network/interpreter.h"
#include "tests/bits/data.h"
#include "tests/bits/generated.h"
#include "tests/bits/same_values.h"
#include "tests/support/kernel_test.h"
#include "tests/support/reference.h"

namespace xfm::test {
namespace {

class Interpreted : public KernelTest {};

template <class T>
void run(const gen::Network& network, const Array& src, Array& dst, double factor) {
  gen::evaluate(network, static_cast<const T*>(src.data()), static_cast<T*>(dst.data()),
                static_cast<T>(factor));
}

Array interpret(const gen::Kernel& kernel, const Array& src, double factor) {
  Array dst(src.precision(), kernel.written);
  dst.fill(Poison::quiet_nan);
  if (src.precision() == Precision::binary32) {
    run<float>(*kernel.network, src, dst, factor);
  } else {
    run<double>(*kernel.network, src, dst, factor);
  }
  return dst;
}

TEST_P(Interpreted, EqualsTheKernel) {
  constexpr int rounds = 3;
  const gen::Kernel& made = generated(kernel());
  ASSERT_EQ(made.name(), kernel().name);
  ASSERT_EQ(made.tree, kernel().tree);
  for (const Data& data : all_data()) {
    for (int round = 0; round < rounds; ++round) {
      const Array src = draw(data, random, kernel().precision, kernel().read);
      for (const std::int32_t flag : flags) {
        const Array expected = interpret(made, src, factor(kernel(), flag));
        ASSERT_TRUE(same_values(separate(src, flag), expected, Zeros::as_they_are))
            << data.name << " data, round " << round << ", flag " << flag;
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, Interpreted, testing::ValuesIn(generated_kernels()), ByName());

}  // namespace
}  // namespace xfm::test
