# Compiler options, in one place: what every target gets, and what keeps the bits of a kernel fixed.
include(${CMAKE_CURRENT_LIST_DIR}/targets.cmake)

# Everything of this project: C++20, no extensions but the ones named, warnings are errors.
add_library(xfm_options INTERFACE)
target_compile_features(xfm_options INTERFACE cxx_std_20)
target_compile_options(xfm_options INTERFACE
  -Wall -Wextra -Wshadow $<$<COMPILE_LANGUAGE:CXX>:-Wconversion>
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>  # false alarms of g++ 12 on string concatenation, GCC bug 105651
  $<$<BOOL:${PROJECT_IS_TOP_LEVEL}>:-Werror>)

# Kernels: products and sums must not fuse, no option that changes values may be inherited, and scalar kernels must stay
# scalar, so the vectorisers are off. The target's flags override the caller's.
function(xfm_add_kernel_options name target)
  xfm_target_field(${target} compile_flags flags)
  xfm_target_field(${target} vocabulary vocabulary)
  separate_arguments(flags)
  add_library(${name} INTERFACE)
  target_compile_options(${name} INTERFACE
    -ffp-contract=off -fno-fast-math -fno-tree-vectorize -fno-tree-slp-vectorize ${flags} -fvisibility=hidden
    -falign-functions=64  # a cache line: where they start costs the shortest kernels a cycle in ten
    $<$<CXX_COMPILER_ID:GNU>:-fno-reorder-blocks-and-partition>  # a kernel is one piece, with its entry tests
    $<$<CXX_COMPILER_ID:GNU>:-fno-ipa-icf>  # equal kernels stay apart, without a jump
    $<$<CXX_COMPILER_ID:GNU>:-fno-lra-remat>)  # nothing is computed again to save a register
  target_compile_definitions(${name} INTERFACE XFM_VOCABULARY="${vocabulary}")  # what src/simd/simd.h includes
endfunction()
