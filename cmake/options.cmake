# Compiler options, in one place: what every target gets, and what keeps the bits of a kernel fixed.
include(${CMAKE_CURRENT_LIST_DIR}/targets.cmake)

# xfm_drop_flags(): xfm is compiled without those of the caller's flags that choose another processor, change the values
# of floating-point arithmetic, or have the linker compile. They come from a project that embeds xfm, or from CXXFLAGS.
# Kernels override most of them, but the generator computes constants, g++ links a library with code that flushes
# denormals to zero, and a kernel that is inlined at link time gets the flags of its caller.
function(xfm_drop_flags)
  set(dropped "")
  foreach(type "" ${CMAKE_BUILD_TYPE} ${CMAKE_CONFIGURATION_TYPES})
    string(TOUPPER "_${type}" suffix)
    string(REGEX REPLACE "^_$" "" suffix "${suffix}")
    foreach(variable CMAKE_C_FLAGS${suffix} CMAKE_CXX_FLAGS${suffix})
      separate_arguments(flags UNIX_COMMAND "${${variable}}")
      xfm_move_flags(flags dropped changed)
      if(changed)
        list(JOIN flags " " flags)
        set(${variable} "${flags}" PARENT_SCOPE)
      endif()
    endforeach()
    if(CMAKE_INTERPROCEDURAL_OPTIMIZATION${suffix})
      list(APPEND dropped CMAKE_INTERPROCEDURAL_OPTIMIZATION${suffix})
      set(CMAKE_INTERPROCEDURAL_OPTIMIZATION${suffix} OFF PARENT_SCOPE)
    endif()
  endforeach()
  get_directory_property(options COMPILE_OPTIONS)  # of add_compile_options
  xfm_move_flags(options dropped changed)
  set_directory_properties(PROPERTIES COMPILE_OPTIONS "${options}")

  list(REMOVE_DUPLICATES dropped)
  list(JOIN dropped ", " names)
  if(names)
    message(STATUS "xfm is compiled without ${names}: it keeps its bits, and XFM_TARGETS says where it runs")
  endif()
endfunction()

# xfm_move_flags(FROM TO CHANGED): moves such flags from one list to another.
function(xfm_move_flags from to changed)
  string(CONCAT foreign "^(-Ofast|-flto.*"
    "|-m(arch|cpu|tune|fpmath)=.*|-m(sse|ssse|avx|fma|f16c|bmi|lzcnt|popcnt|movbe|xop|tbm).*"
    "|-ffast-math|-funsafe-math-optimizations|-fassociative-math|-freciprocal-math|-ffinite-math-only"
    "|-fno-signed-zeros|-fno-trapping-math|-fsingle-precision-constant|-fcx-limited-range|-ffp-contract=.*)$")
  set(moved ${${from}})
  list(FILTER moved INCLUDE REGEX "${foreign}")
  set(kept ${${from}})
  list(TRANSFORM kept REPLACE "^-Ofast$" -O3)
  list(FILTER kept EXCLUDE REGEX "${foreign}")
  set(${from} "${kept}" PARENT_SCOPE)
  set(${to} ${${to}} ${moved} PARENT_SCOPE)
  set(${changed} "${moved}" PARENT_SCOPE)
endfunction()

# Everything of this project: C++20, no extensions but the ones named. Warnings are errors where
# CMAKE_COMPILE_WARNING_AS_ERROR says so: our presets do.
add_library(xfm_options INTERFACE)
target_compile_features(xfm_options INTERFACE cxx_std_20)
target_compile_options(xfm_options INTERFACE
  -Wall -Wextra -Wshadow $<$<COMPILE_LANGUAGE:CXX>:-Wconversion>
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)  # false alarms of g++ 12 on string concatenation, GCC bug 105651

# Kernels: products and sums must not fuse, no option that changes values may be inherited, and scalar kernels must stay
# scalar, so the vectorisers are off. The target's flags override the caller's.
function(xfm_add_kernel_options name target)
  xfm_target_field(${target} compile_flags flags)
  xfm_target_field(${target} vocabulary vocabulary)
  separate_arguments(flags)
  add_library(${name} INTERFACE)
  target_compile_options(${name} INTERFACE
    -ffp-contract=off -fno-fast-math -fno-tree-vectorize -fno-tree-slp-vectorize ${flags} -fvisibility=hidden
    -fno-lto  # a kernel that is inlined into its caller may be fused there
    -falign-functions=64  # a cache line: where they start costs the shortest kernels a cycle in ten
    $<$<CXX_COMPILER_ID:GNU>:-fno-reorder-blocks-and-partition>  # a kernel is one piece, with its entry tests
    $<$<CXX_COMPILER_ID:GNU>:-fno-ipa-icf>  # equal kernels stay apart, without a jump
    $<$<CXX_COMPILER_ID:GNU>:-fno-lra-remat>)  # nothing is computed again to save a register
  target_compile_definitions(${name} INTERFACE XFM_VOCABULARY="${vocabulary}")  # what src/simd/simd.h includes
endfunction()
