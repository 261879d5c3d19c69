# Each public header by itself, in every language standard it supports, by the compilers at hand: a source file that
# contains only the header.
set(header_xfm ${PROJECT_SOURCE_DIR}/include/xfm.h)
set(header_xfm_lookup ${PROJECT_SOURCE_DIR}/include/xfm_lookup.h)
set(header_xfm_many ${PROJECT_SOURCE_DIR}/include/xfm_many.h)
set(header_xfmcore ${PROJECT_SOURCE_DIR}/core/include/xfmcore.h)

foreach(compiler gcc clang)
  find_program(XFM_HEADER_${compiler} ${compiler})
  mark_as_advanced(XFM_HEADER_${compiler})
  if(NOT XFM_HEADER_${compiler})
    continue()
  endif()
  foreach(standard c99 c17 c++11 c++14 c++17 c++20 c++2b)
    string(REGEX MATCH "^c(\\+\\+)?" language ${standard})
    foreach(header xfm xfm_lookup xfm_many xfmcore)
      add_test(NAME package.header.${header}.${standard}.${compiler} COMMAND ${XFM_HEADER_${compiler}}
        -Wall -Wextra -pedantic -Werror -std=${standard} -include ${header_${header}} -x ${language} -c /dev/null -o /dev/null)
    endforeach()
  endforeach()
endforeach()
