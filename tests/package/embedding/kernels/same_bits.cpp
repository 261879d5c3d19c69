// usage: same_bits LIBRARY
// Calls kernels that are linked into this program, and the same functions of a shared library, and compares
// the bits.
#include <dlfcn.h>
#include <xfm.h>

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <initializer_list>
#include <type_traits>

namespace {

void* library = nullptr;
int compared = 0;
int different = 0;

/// Data whose products have more digits than fit, and not known to the compiler, which would compute the
/// results.
double next() {
  static unsigned long long state = 1;
  state = state * 6364136223846793005ULL + 1442695040888963407ULL;
  return static_cast<double>(static_cast<std::int64_t>(state)) * 0x1p-63;
}

template <class Function>
struct ElementOf;
template <class Element>
struct ElementOf<xfmStatus (*)(const Element*, Element*, std::int32_t)> {
  using Type = Element;
};

/// Compares the function that is linked with the library's of the same name. Its address is not taken and it
/// is called nowhere else, so that a compiler that sees all of the program likes to inline it.
template <auto linked>
[[gnu::noinline]] void compare(const char* name) {
  using Element = typename ElementOf<decltype(linked)>::Type;
  constexpr bool is_double = std::is_same_v<Element, xfm64f> || std::is_same_v<Element, xfm64fc>;
  using Number = std::conditional_t<is_double, xfm64f, xfm32f>;
  const auto loaded = reinterpret_cast<decltype(linked)>(dlsym(library, name));
  for (const std::int32_t flag : {XFM_SCALE_FWD_BY_N, XFM_SCALE_NONE}) {
    constexpr std::size_t numbers = 32;
    Number src[numbers], dst[numbers] = {}, expected[numbers] = {};
    for (Number& number : src) number = static_cast<Number>(next());
    const auto* const from = reinterpret_cast<const Element*>(src);
    const bool same = loaded != nullptr && linked(from, reinterpret_cast<Element*>(dst), flag) == xfmStsOk &&
                      loaded(from, reinterpret_cast<Element*>(expected), flag) == xfmStsOk &&
                      std::memcmp(dst, expected, sizeof dst) == 0;
    if (!same) std::printf("%s differs\n", name);
    ++compared;
    different += same ? 0 : 1;
  }
}

}  // namespace

#define COMPARE(name) compare<&name>(#name);
#define COMPARE_BOTH(family, N, type) \
  COMPARE(xfm##family##_##N##_32##type) COMPARE(xfm##family##_##N##_64##type)
#define COMPARE_LENGTH(N)            \
  COMPARE_BOTH(DFTFwd_CToC, N, fc)   \
  COMPARE_BOTH(DFTInv_CToC, N, fc)   \
  COMPARE_BOTH(DFTFwd_RToCCS, N, f)  \
  COMPARE_BOTH(DFTFwd_RToPack, N, f) \
  COMPARE_BOTH(DFTFwd_RToPerm, N, f) \
  COMPARE_BOTH(DFTInv_CCSToR, N, f)  \
  COMPARE_BOTH(DFTInv_PackToR, N, f) \
  COMPARE_BOTH(DFTInv_PermToR, N, f) \
  COMPARE_BOTH(Hartley, N, f)

int main(int argc, char** argv) {
  library = argc == 2 ? dlopen(argv[1], RTLD_NOW | RTLD_LOCAL) : nullptr;
  if (library == nullptr) {
    std::fprintf(stderr, "usage: same_bits LIBRARY\n");
    return 2;
  }
  COMPARE_LENGTH(2)
  COMPARE_LENGTH(3)
  COMPARE_LENGTH(4)
  COMPARE_LENGTH(5)
  COMPARE_LENGTH(6)
  COMPARE_LENGTH(7)
  COMPARE_LENGTH(8)
  COMPARE_LENGTH(13)
  std::printf("%d compared, %d different\n", compared, different);
  return different != 0;
}
