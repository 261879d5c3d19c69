# Compiler options, in one place: what every target gets, and what keeps the bits of a kernel fixed.

# Everything of this project: C++20, no extensions but the ones named, warnings are errors.
add_library(xfm_options INTERFACE)
target_compile_features(xfm_options INTERFACE cxx_std_20)
target_compile_options(xfm_options INTERFACE
  -Wall -Wextra -Wshadow $<$<COMPILE_LANGUAGE:CXX>:-Wconversion>
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>  # false alarms of g++ 12 on string concatenation, GCC bug 105651
  $<$<BOOL:${PROJECT_IS_TOP_LEVEL}>:-Werror>)

# Kernels: no product and sum may fuse, no value-changing option may be inherited, and the scalar families must
# stay scalar, so the vectorisers are off. The baseline is x86-64 with SSE2 whatever the caller's flags say.
add_library(xfm_kernel_options INTERFACE)
target_compile_options(xfm_kernel_options INTERFACE
  -ffp-contract=off -fno-fast-math -fno-tree-vectorize -fno-tree-slp-vectorize
  -march=x86-64 -mtune=generic -fvisibility=hidden
  $<$<CXX_COMPILER_ID:GNU>:-fno-reorder-blocks-and-partition>)  # a kernel is one piece, its refusals included

# The registers of the target, as src/simd/simd.h hands them on.
target_compile_definitions(xfm_kernel_options INTERFACE XFM_VOCABULARY="src/simd/x86_64.h")
