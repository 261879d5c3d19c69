#include "fuzz/expected.h"

#include <cstring>
#include <map>
#include <tuple>

#include "fuzz/report.h"
#include "gen/network/interpreter.h"
#include "tests/bits/generated.h"
#include "tests/bits/same_values.h"
#include "tests/support/bad_flags.h"
#include "tests/support/reference.h"
#include "tests/wht/loop_nest.h"

namespace xfm::fuzz {
namespace {

using catalogue::Kernel;
using catalogue::Precision;
using test::Array;
using Key = std::tuple<std::string, std::string, int>;

std::map<Key, const Kernel*> index_of_kernels() {
  std::map<Key, const Kernel*> index;
  for (const Kernel& kernel : catalogue::kernels())
    index[{kernel.family, kernel.type, kernel.length}] = &kernel;
  return index;
}

template <class T>
void interpret(const Kernel& kernel, const Array& src, Array& dst, double factor) {
  gen::evaluate(*test::generated(kernel).network, static_cast<const T*>(src.data()),
                static_cast<T*>(dst.data()), static_cast<T>(factor));
}

}  // namespace

const Kernel* find_kernel(const char* family, const char* type, std::int32_t length) {
  static const auto index = index_of_kernels();
  const auto found = index.find({family, type, length});
  return found == index.end() ? nullptr : found->second;
}

xfmStatus expected_status(bool served, bool any_null, std::int32_t flag) {
  if (!served) return xfmStsBadSize;
  if (any_null) return xfmStsNullPtr;
  return test::is_flag(flag) ? xfmStsOk : xfmStsBadScale;
}

Array expected_output(const Kernel& kernel, const Array& src, std::int32_t flag) {
  const double factor = test::factor(kernel, flag);
  if (std::strcmp(kernel.family, "WHT") == 0) return test::loop_nest(src, factor);
  Array dst(kernel.precision, kernel.written);
  if (kernel.precision == Precision::binary32)
    interpret<float>(kernel, src, dst, factor);
  else
    interpret<double>(kernel, src, dst, factor);
  return dst;
}

void require_output(const void* got, const Array& expected, const std::string& call) {
  Array copy(expected.precision(), expected.count());
  std::memcpy(copy.data(), got, copy.bytes());
  const auto result = test::same_values(copy, expected, test::Zeros::as_they_are);
  require(result, call + ": " + result.message());
}

}  // namespace xfm::fuzz
