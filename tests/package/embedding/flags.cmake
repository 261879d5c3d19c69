# cmake -D SOURCE=... -D XFM_SOURCE=... -D PLACE=... -P flags.cmake
# Whatever flags a project has that would change xfm's bits or where it runs, xfm is compiled and linked by the same
# commands, and names the flags. The project that embeds it has no targets of its own, so its build files are xfm's.
function(configure name)
  execute_process(
    COMMAND ${CMAKE_COMMAND} --fresh -G Ninja -S ${SOURCE} -B ${PLACE} -D XFM_SOURCE=${XFM_SOURCE}
      -D CMAKE_BUILD_TYPE=Release -D BUILD_TYPE=Release ${ARGN}
    OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
  file(COPY_FILE ${PLACE}/build.ninja ${PLACE}/${name}.ninja)
  set(output "${output}" PARENT_SCOPE)
endfunction()
function(differs one other result)
  execute_process(COMMAND diff ${PLACE}/${one}.ninja ${PLACE}/${other}.ninja RESULT_VARIABLE difference)
  set(${result} ${difference} PARENT_SCOPE)
endfunction()

configure(plain)
if(output MATCHES "compiled without")
  message(FATAL_ERROR "there is nothing to drop: ${output}")
endif()

set(flags -march=native -mavx2 -mfma -flto=auto -ffast-math -ffp-contract=fast)
set(options -mtune=native -mavx512f -fassociative-math)
list(JOIN flags " " joined)
list(JOIN options " " joined_options)
configure(flagged -D CMAKE_INTERPROCEDURAL_OPTIMIZATION=ON "-DCMAKE_C_FLAGS=${joined}" "-DCMAKE_CXX_FLAGS=${joined}"
  "-DCMAKE_CXX_FLAGS_RELEASE=-Ofast -DNDEBUG" "-DOPTIONS=${joined_options}")
differs(plain flagged difference)
if(difference)
  message(FATAL_ERROR "xfm is built in another way")
endif()
foreach(flag IN LISTS flags options ITEMS CMAKE_INTERPROCEDURAL_OPTIMIZATION -Ofast)
  string(FIND "${output}" "${flag}" found)
  if(found LESS 0)
    message(FATAL_ERROR "xfm does not name ${flag}: ${output}")
  endif()
endforeach()

# Others arrive, so the comparison would have seen those.
configure(harmless "-DCMAKE_CXX_FLAGS=-g")
differs(plain harmless difference)
if(NOT difference)
  message(FATAL_ERROR "-g does not arrive")
endif()
