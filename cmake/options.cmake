# Compiler options, in one place: what every target gets, and what keeps the bits of a kernel fixed.

# Everything of this project: C++20, no extensions but the ones named, warnings are errors.
add_library(xfm_options INTERFACE)
target_compile_features(xfm_options INTERFACE cxx_std_20)
target_compile_options(xfm_options INTERFACE
  -Wall -Wextra -Wshadow $<$<COMPILE_LANGUAGE:CXX>:-Wconversion>
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>  # false alarms of g++ 12 on string concatenation, GCC bug 105651
  $<$<BOOL:${PROJECT_IS_TOP_LEVEL}>:-Werror>)

# Kernels: products and sums must not fuse, no option that changes values may be inherited, and scalar kernels must stay
# scalar, so the vectorisers are off. The target is x86-64 with SSE2 whatever the caller's flags say: -march replaces
# another -march, but leaves single extensions on. Without SSE3 there is nothing that builds on it, AVX and FMA included;
# the others extend the integer unit.
add_library(xfm_kernel_options INTERFACE)
target_compile_options(xfm_kernel_options INTERFACE
  -ffp-contract=off -fno-fast-math -fno-tree-vectorize -fno-tree-slp-vectorize
  -march=x86-64 -mtune=generic -mfpmath=sse
  -mno-sse3 -mno-popcnt -mno-lzcnt -mno-bmi -mno-bmi2 -mno-movbe -mno-tbm
  -fvisibility=hidden
  $<$<CXX_COMPILER_ID:GNU>:-fno-reorder-blocks-and-partition>)  # a kernel is one piece, with its entry tests

# The registers of the target, as src/simd/simd.h hands them on.
target_compile_definitions(xfm_kernel_options INTERFACE XFM_VOCABULARY="src/simd/x86_64.h")
