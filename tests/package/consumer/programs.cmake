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
add_program(many many.c xfmmany)
add_program(many_static many.c xfmmany_static)
add_program(memory memory.c xfmcore)
add_program(memory_static memory.c xfmcore_static)

# The static libraries of other targets, which run where the loader says so.
execute_process(COMMAND /lib64/ld-linux-x86-64.so.2 --help OUTPUT_VARIABLE help)
foreach(v v2 v3 v4)
  if(TARGET xfm::xfm_static_${v})
    add_program(transform_static_${v} transform.c xfm_static_${v})
    add_program(many_static_${v} many.c xfmmany_static_${v})
    string(FIND "${help}" "x86-64-${v} (supported" found)
    if(found LESS 0)
      set_tests_properties(transform_static_${v} many_static_${v} PROPERTIES DISABLED TRUE)
    endif()
  endif()
endforeach()
