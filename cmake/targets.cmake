# The targets that the library is built for, the baseline first, and the CMake target of each library: xfm, xfm_v2.
set(XFM_TARGET_NAMES x86-64 x86-64-v3 x86-64-v4)
foreach(target ${XFM_TARGET_NAMES})
  string(REGEX REPLACE "^x86-64-?" "xfm_" XFM_LIBRARY_${target} ${target})
  string(REGEX REPLACE "_$" "" XFM_LIBRARY_${target} ${XFM_LIBRARY_${target}})
endforeach()

# xfm_target_field(TARGET FIELD RESULT): a field of the target's description in gen/targets. The lines .field = "value"
# of that file are read by the compiler and here.
function(xfm_target_field target field result)
  string(REPLACE - _ file ${target})
  set(description ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../gen/targets/${file}.cpp)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${description})
  file(STRINGS ${description} line REGEX "^ *[.]${field} = ")
  if(NOT line MATCHES "= \"(.*)\",$")
    message(FATAL_ERROR "${description}: no line .${field} = \"..\",")
  endif()
  set(${result} ${CMAKE_MATCH_1} PARENT_SCOPE)
endfunction()
