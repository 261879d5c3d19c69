#include "tests/support/kernel_test.h"

#include <ostream>

namespace xfm::catalogue {
void PrintTo(const Kernel& kernel, std::ostream* out) { *out << kernel.name; }
void PrintTo(const Generic& generic, std::ostream* out) { *out << generic.name; }
}  // namespace xfm::catalogue

namespace xfm::test {

std::string heading(const std::string& name) { return name + ", XFM_SEED=" + std::to_string(seed()); }

std::vector<Kernel> kernels_of(const std::string& family) {
  std::vector<Kernel> found;
  for (const Kernel& kernel : catalogue::kernels())
    if (kernel.family == family) found.push_back(kernel);
  return found;
}

const Kernel* find_kernel(const std::string& family, int length, const std::string& type) {
  for (const Kernel& kernel : catalogue::kernels())
    if (kernel.length == length && kernel.family == family && kernel.type == type) return &kernel;
  return nullptr;
}

KernelTest::KernelTest() : random(GetParam().name), trace_(__FILE__, __LINE__, heading(GetParam().name)) {}

Array KernelTest::separate(const Array& src, std::int32_t flag) {
  Array aligned(src.precision(), src.count());
  aligned.copy(src);
  Array dst = output();
  dst.fill(Poison::quiet_nan);
  EXPECT_EQ(run(kernel(), aligned.data(), dst.data(), flag), xfmStsOk);
  return dst;
}

GenericTest::GenericTest() : random(GetParam().name), trace_(__FILE__, __LINE__, heading(GetParam().name)) {}

const Kernel* GenericTest::kernel_of(int length) {
  return find_kernel(generic().family, length, generic().type);
}

}  // namespace xfm::test
