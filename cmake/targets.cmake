# The targets that the library is built for, and the CMake target of each one's library.
set(XFM_TARGET_NAMES x86-64)
set(XFM_LIBRARY_x86-64 xfm)

# xfm_target_field(TARGET FIELD RESULT): what the target's description in gen/targets says. Its lines .field = "value"
# are read by the compiler and here.
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
