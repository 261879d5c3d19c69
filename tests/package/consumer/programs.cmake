# The consumer's programs in the chosen language, each with the shared and with the static library.
enable_testing()

function(add_program name source library)
  add_executable(${name} ../${source})
  set_source_files_properties(../${source} PROPERTIES LANGUAGE ${LANGUAGE})
  target_link_libraries(${name} PRIVATE xfm::${library})
  add_test(NAME ${name} COMMAND ${name})
endfunction()

add_program(transform transform.c xfm)
add_program(transform_static transform.c xfm_static)
add_program(memory memory.c xfmcore)
add_program(memory_static memory.c xfmcore_static)
