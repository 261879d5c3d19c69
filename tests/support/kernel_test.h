// The catalogue as test parameters, and a fixture that adds the kernel's name and the seed to every failure.
#pragma once

#include <gtest/gtest.h>

#include <iosfwd>
#include <string>
#include <vector>

#include "tests/support/attempt.h"
#include "tests/support/random.h"

namespace xfm::catalogue {
// GoogleTest finds these to print a parameter.
void PrintTo(const Kernel& kernel, std::ostream* out);
void PrintTo(const Generic& generic, std::ostream* out);
}  // namespace xfm::catalogue

namespace xfm::test {

using catalogue::Generic;
using catalogue::Kernel;

/// The kernels of a family, in both precisions.
std::vector<Kernel> kernels_of(const std::string& family);
/// One of them, or null.
const Kernel* find_kernel(const std::string& family, int length, const std::string& type);

class KernelTest : public testing::TestWithParam<Kernel> {
 protected:
  KernelTest();

  static const Kernel& kernel() { return GetParam(); }
  /// The bytes of a real scalar: arrays may start at any multiple of it.
  static int step() { return scalar_size(kernel().precision); }
  Array random_input(Kind kind = Kind::ordinary) {
    return random.array(kernel().precision, kernel().read, kind);
  }
  static Array output() { return {kernel().precision, kernel().written}; }
  /// The outputs of the kernel for src in separate, aligned arrays. The accuracy tests compare them with the
  /// definition.
  static Array separate(const Array& src, std::int32_t flag);

  Random random;

 private:
  testing::ScopedTrace trace_;
};

class GenericTest : public testing::TestWithParam<Generic> {
 protected:
  GenericTest();
  static const Generic& generic() { return GetParam(); }
  /// The kernel that serves the length, or null.
  static const Kernel* kernel_of(int length);

  Random random;

 private:
  testing::ScopedTrace trace_;
};

/// Names an instance after its function.
struct ByName {
  template <class Parameter>
  std::string operator()(const testing::TestParamInfo<Parameter>& info) const {
    return info.param.name;
  }
};

/// The heading of every failure: the name, and how to reproduce the data.
std::string heading(const std::string& name);

}  // namespace xfm::test

#define XFM_FOR_ALL_KERNELS(suite) \
  INSTANTIATE_TEST_SUITE_P(All, suite, testing::ValuesIn(xfm::catalogue::kernels()), xfm::test::ByName())
#define XFM_FOR_ALL_GENERICS(suite) \
  INSTANTIATE_TEST_SUITE_P(All, suite, testing::ValuesIn(xfm::catalogue::generics()), xfm::test::ByName())
