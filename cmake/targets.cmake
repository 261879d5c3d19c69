# The targets that the library is built for. Each is described in gen/targets, in a file of its name.
include(CheckCXXCompilerFlag)

# xfm_target_field(TARGET FIELD RESULT): a field of the target's description in gen/targets. The lines .field = "value"
# of that file are read by the compiler and here.
function(xfm_target_field target field result)
  string(REPLACE - _ file ${target})
  set(description ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../gen/targets/${file}.cpp)
  if(NOT EXISTS ${description})
    message(FATAL_ERROR "No target ${target}: there is no ${description}")
  endif()
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${description})
  file(STRINGS ${description} line REGEX "^ *[.]${field} = ")
  if(NOT line MATCHES "= \"(.*)\",$")
    message(FATAL_ERROR "${description}: no line .${field} = \"..\",")
  endif()
  set(${result} ${CMAKE_MATCH_1} PARENT_SCOPE)
endfunction()

# xfm_runs_here(TARGET RESULT): whether this processor has the target's instructions, as its loader judges.
set(XFM_LOADER /lib64/ld-linux-x86-64.so.2)
function(xfm_runs_here target result)
  execute_process(COMMAND ${XFM_LOADER} --help OUTPUT_VARIABLE help ERROR_QUIET RESULT_VARIABLE failure)
  if(target STREQUAL x86-64 OR help MATCHES "${target} \\(supported")
    set(${result} TRUE PARENT_SCOPE)
  else()
    set(${result} FALSE PARENT_SCOPE)
  endif()
endfunction()

# xfm_choose_targets(): makes of the option XFM_TARGETS
#   XFM_TARGET_NAMES       the targets to build for, the baseline first
#   XFM_SUFFIX_<target>    of its CMake targets: "" for the baseline, then "_v3"
#   XFM_NATIVE             the best target of this machine
# By default everything that the compiler can compile for, but the baseline alone in a project that embeds xfm.
function(xfm_choose_targets)
  set(default x86-64)
  if(PROJECT_IS_TOP_LEVEL)
    foreach(target x86-64-v3 x86-64-v4)
      check_cxx_compiler_flag(-march=${target} XFM_COMPILES_${target})
      if(XFM_COMPILES_${target})
        list(APPEND default ${target})
      endif()
    endforeach()
  endif()
  set(XFM_TARGETS "${default}" CACHE STRING
    "Targets, such as x86-64-v3; native is the best of this machine. The baseline x86-64 is always built")

  set(names x86-64 ${XFM_TARGETS})
  set(native x86-64)
  foreach(better x86-64-v2 x86-64-v3 x86-64-v4)
    xfm_runs_here(${better} runs)
    if(runs)
      set(native ${better})
    endif()
  endforeach()
  list(TRANSFORM names REPLACE "^native$" ${native})
  list(REMOVE_DUPLICATES names)
  foreach(target IN LISTS names)
    string(REGEX REPLACE "^x86-64-?" "_" suffix ${target})
    string(REGEX REPLACE "^_$" "" suffix "${suffix}")
    set(XFM_SUFFIX_${target} "${suffix}" PARENT_SCOPE)
  endforeach()
  set(XFM_TARGET_NAMES ${names} PARENT_SCOPE)
  set(XFM_NATIVE ${native} PARENT_SCOPE)
  message(STATUS "Targets: ${names}")
endfunction()
