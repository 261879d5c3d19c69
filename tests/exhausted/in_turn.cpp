// Everything that allocates, with each of its allocations failing in turn: what it reports then, and that it
// leaves nothing behind. A Walsh-Hadamard kernel without a buffer dereferences a null pointer, as its header
// says.
#include <functional>
#include <new>
#include <ostream>
#include <string>
#include <vector>

#include "tests/support/counted_malloc.h"
#include "tests/support/kernel_test.h"
#include "tools/many_catalogue.h"
#include "xfm.hpp"
#include "xfmcore.h"

namespace xfm::test {
namespace {

enum class Outcome { done, refused, threw, something_else };

void PrintTo(Outcome outcome, std::ostream* out) {
  constexpr const char* names[] = {"done", "refused", "threw", "something else"};
  *out << names[static_cast<int>(outcome)];
}

Outcome of(status result) {
  if (result == status::ok) return Outcome::done;
  return result == status::no_memory ? Outcome::refused : Outcome::something_else;
}

struct Case {
  std::string name;
  int allocations;  ///< when memory is there
  Outcome without;  ///< when one of them fails
  std::function<Outcome()> work;
};

template <class State>
std::function<Outcome()> makes_state(xfmStatus (*init)(State**, std::int32_t), xfmStatus (*free)(State*),
                                     std::int32_t length) {
  return [=] {
    static char unwritten;
    auto* const before = reinterpret_cast<State*>(&unwritten);
    State* state = before;
    const xfmStatus made = init(&state, length);
    if (made == xfmStsOk) return free(state) == xfmStsOk ? Outcome::done : Outcome::something_else;
    return made == xfmStsNullPtr && state == before ? Outcome::refused : Outcome::something_else;
  };
}

template <class Object>
Outcome holds_memory(Object object) {
  static void* volatile seen;  // or the compiler leaves the memory out
  seen = object.data();
  return seen != nullptr ? Outcome::done : Outcome::something_else;
}

template <class T>
void add_objects(std::vector<Case>& cases, const std::string& type) {
  for (const std::size_t length : {2U, 64U, 4096U}) {
    const std::string name = type + "_" + std::to_string(length);
    cases.push_back({"dct4_" + name, 1, Outcome::refused, [=] { return of(dct4<T>(length).outcome()); }});
    const auto window = std::make_shared<std::vector<T>>(2 * length, T{1});
    cases.push_back({"mdct_" + name, 2, Outcome::refused, [=] {
                       const std::span<const T> of_window(window->data(), window->size());
                       return of(mdct<T>(of_window, scale::none).outcome());
                     }});
  }
  cases.push_back({"wht_buffer_" + type, 1, Outcome::threw, [] { return holds_memory(wht_buffer<T>()); }});
  cases.push_back({"half_spectrum_" + type, 1, Outcome::threw,
                   [] { return holds_memory(half_spectrum<layout::ccs, T>(48)); }});
}

std::vector<Case> cases() {
  std::vector<Case> all;
  all.push_back({"xfmMalloc", 1, Outcome::refused, [] {
                   void* const block = xfmMalloc(100);
                   xfmFree(block);
                   return block == nullptr ? Outcome::refused : Outcome::done;
                 }});
  for (const std::int32_t length : {2, 32, 64, 4096, 1 << 16}) {
    const std::string name = "xfmDCT4InitAlloc_" + std::to_string(length);
    all.push_back(
        {name + "_32f", 1, Outcome::refused, makes_state(xfmDCT4InitAlloc_32f, xfmDCT4Free_32f, length)});
    all.push_back(
        {name + "_64f", 1, Outcome::refused, makes_state(xfmDCT4InitAlloc_64f, xfmDCT4Free_64f, length)});
  }
  add_objects<float>(all, "float");
  add_objects<double>(all, "double");
  return all;
}

/// What the work comes to if its allocation with this number fails.
Outcome outcome(const Case& one, long failing) {
  fail_allocation(failing);
  Outcome result = Outcome::something_else;
  try {
    result = one.work();
  } catch (const std::bad_alloc&) {
    result = Outcome::threw;
  }
  fail_allocation(-1);
  return result;
}

class InTurn : public testing::TestWithParam<Case> {
 protected:
  void SetUp() override {
    if (!XFM_COUNTS_ALLOCATIONS) GTEST_SKIP() << "a sanitizer owns malloc";
  }
};

TEST_P(InTurn, EveryAllocationFails) {
  const Case& one = GetParam();
  for (int failing = -1; failing < one.allocations; ++failing) {
    const Allocations before = allocations();
    const Outcome got = outcome(one, failing);
    const Allocations after = allocations();
    EXPECT_EQ(got, failing < 0 ? Outcome::done : one.without) << "failing: " << failing;
    if (failing < 0) {
      EXPECT_EQ(after.asked - before.asked, one.allocations);
    }
    EXPECT_EQ(after.given - before.given, after.released - before.released) << "failing: " << failing;
  }
}

INSTANTIATE_TEST_SUITE_P(All, InTurn, testing::ValuesIn(cases()), ByName());

void PrintTo(const Case& one, std::ostream* out) { *out << one.name; }

// Sanitizers report the fault in their own way.
#if XFM_COUNTS_ALLOCATIONS
class WithoutBuffer : public KernelTest {
 protected:
  /// Memory is exhausted when the call comes.
  static bool faults_without_memory(const std::function<void()>& call) {
    fail_all_allocations();
    const bool faulted = faults(call);
    fail_allocation(-1);
    return faulted;
  }
};

std::vector<Kernel> kernels_with_buffer() {
  std::vector<Kernel> found;
  for (const Kernel& kernel : kernels_of("WHT"))
    if (kernel.buffer_bytes > 0) found.push_back(kernel);
  return found;
}

TEST_P(WithoutBuffer, ANullPointerIsDereferenced) {
  constexpr int count = 3;
  const catalogue::Places places{1, kernel().read};
  const catalogue::Batch& batch = catalogue::batch(kernel());
  const Array src = random.array(kernel().precision, count * kernel().read);
  Array dst(kernel().precision, count * kernel().written);
  dst.fill(Poison::bytes_aa);
  const Array before(dst);
  EXPECT_TRUE(faults_without_memory([&] { kernel().call(src.data(), dst.data(), XFM_SCALE_NONE); }))
      << "kernel";
  EXPECT_TRUE(faults_without_memory([&] {
    batch.call(src.data(), places, dst.data(), places, kernel().length, count, XFM_SCALE_NONE);
  })) << "batch";
  for (const Generic& generic : catalogue::generics()) {
    if (std::string(generic.family) != "WHT" || std::string(generic.type) != kernel().type) continue;
    EXPECT_TRUE(faults_without_memory([&] {
      generic.call(src.data(), dst.data(), kernel().length, XFM_SCALE_NONE);
    })) << generic.name;
  }
  EXPECT_TRUE(same_bits(dst, before)) << "dst was written";
}

INSTANTIATE_TEST_SUITE_P(All, WithoutBuffer, testing::ValuesIn(kernels_with_buffer()), ByName());
#endif

}  // namespace
}  // namespace xfm::test
