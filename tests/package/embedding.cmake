# A project that embeds xfm gets the library and nothing else, and its flags do not change the library.
set(embedding ${CMAKE_CURRENT_SOURCE_DIR}/embedding)
set(embedded ${CMAKE_CURRENT_BINARY_DIR}/embedded)
foreach(subject leaks flags)
  add_test(NAME package.embedded.${subject} COMMAND ${CMAKE_COMMAND} -D SOURCE=${embedding}
    -D XFM_SOURCE=${PROJECT_SOURCE_DIR} -D PLACE=${embedded}/${subject} -P ${embedding}/${subject}.cmake)
endforeach()

# Optimisation at link time needs a library without instrumentation beside it.
if(CMAKE_CXX_FLAGS MATCHES "-fsanitize")
  return()
endif()
set(flags "-O3")
xfm_runs_here(x86-64-v3 runs)
if(runs)
  string(APPEND flags " -mavx2 -mfma")
endif()
function(xfm_test_embedded_bits name drop)
  add_test(NAME package.embedded.${name} COMMAND ${CMAKE_CTEST_COMMAND}
    --build-and-test ${embedding}/kernels ${embedded}/${name} --build-generator ${CMAKE_GENERATOR}
    --build-options -D CMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER} -D CMAKE_CXX_FLAGS=${flags}
      -D XFM_SOURCE=${PROJECT_SOURCE_DIR} -D XFM_GENERATED=${PROJECT_BINARY_DIR}/generated -D DROP=${drop}
    --test-command same_bits ${PROJECT_BINARY_DIR}/src/$<TARGET_FILE_NAME:xfm>)
  set_tests_properties(package.embedded.${name} PROPERTIES PROCESSORS 2)
endfunction()
xfm_test_embedded_bits(bits ON)
xfm_test_embedded_bits(bits_of_kernel_options OFF)
