# Consumers: one source in C and in C++, linked with each form of the library, found in each of three ways.
set(consumer ${CMAKE_CURRENT_SOURCE_DIR}/consumer)
set(place ${CMAKE_CURRENT_BINARY_DIR}/consumers)

# A consumer uses the compilers and flags of this build, since a library with sanitizers needs a program with them.
set(tools -G ${CMAKE_GENERATOR}
  -D CMAKE_C_COMPILER=${CMAKE_C_COMPILER} -D CMAKE_C_FLAGS=${CMAKE_C_FLAGS}
  -D CMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER} -D CMAKE_CXX_FLAGS=${CMAKE_CXX_FLAGS} -D CMAKE_BUILD_TYPE=$<CONFIG>)

# add_consumer(NAME FOLDER OPTION...): configure, build, and run the tests of a project that uses the library.
function(add_consumer name folder)
  add_test(NAME package.${name} COMMAND ${CMAKE_CTEST_COMMAND}
    --build-and-test ${consumer}/${folder} ${place}/${name} --build-generator ${CMAKE_GENERATOR}
    --build-options ${tools} ${ARGN}
    --test-command ${CMAKE_CTEST_COMMAND} --output-on-failure --no-tests=error)
endfunction()

# The build is installed once and then moved, so that paths into the first place are of no use.
set(stage ${CMAKE_CURRENT_BINARY_DIR}/stage)
set(prefix ${stage}/moved)
add_test(NAME package.install COMMAND ${CMAKE_COMMAND} -D BUILD=${PROJECT_BINARY_DIR} -D CONFIG=$<CONFIG>
  -D STAGE=${stage} -D PREFIX=${prefix} -P ${CMAKE_CURRENT_SOURCE_DIR}/install.cmake)
set_tests_properties(package.install PROPERTIES FIXTURES_SETUP package_installed)

find_package(PkgConfig REQUIRED)
separate_arguments(compile_c UNIX_COMMAND "${CMAKE_C_COMPILER} ${CMAKE_C_FLAGS}")
separate_arguments(compile_cxx UNIX_COMMAND "${CMAKE_CXX_COMPILER} ${CMAKE_CXX_FLAGS} -x c++")

foreach(language c cxx)
  string(TOUPPER ${language} LANGUAGE)
  set(test find_package.${language})
  add_consumer(${test} find_package -D LANGUAGE=${LANGUAGE} -D CMAKE_PREFIX_PATH=${prefix})
  set_tests_properties(package.${test} PROPERTIES FIXTURES_REQUIRED package_installed)

  foreach(form shared static)
    set(test package.pkg_config.${language}.${form})
    add_test(NAME ${test} COMMAND sh ${consumer}/pkg_config.sh
      ${form} ${prefix}/${CMAKE_INSTALL_LIBDIR}/pkgconfig ${stage}/${test} ${compile_${language}})
    set_tests_properties(${test} PROPERTIES FIXTURES_REQUIRED package_installed)
  endforeach()
endforeach()

# Each target's libraries, where they were installed, find the core.
add_executable(package_load load.c)
target_link_libraries(package_load PRIVATE xfm_options ${CMAKE_DL_LIBS})
foreach(target IN LISTS XFM_TARGET_NAMES)
  xfm_target_field(${target} folder folder)
  foreach(name xfm xfmmany)
    cmake_path(SET library NORMALIZE
      ${prefix}/${CMAKE_INSTALL_LIBDIR}/${folder}/$<TARGET_SONAME_FILE_NAME:${name}${XFM_SUFFIX_${target}}>)
    add_test(NAME package.load.${name}.${target} COMMAND package_load ${library})
    set_tests_properties(package.load.${name}.${target} PROPERTIES FIXTURES_REQUIRED package_installed
      ENVIRONMENT_MODIFICATION LD_LIBRARY_PATH=unset:)
  endforeach()
endforeach()

# A consumer's project builds the whole library again, so the everyday test only configures it.
set(embed -D XFM_SOURCE=${PROJECT_SOURCE_DIR})
add_test(NAME package.add_subdirectory.configure
  COMMAND ${CMAKE_COMMAND} --fresh -S ${consumer}/add_subdirectory -B ${place}/configured ${tools} ${embed})
add_consumer(add_subdirectory add_subdirectory ${embed})
set_tests_properties(package.add_subdirectory PROPERTIES LABELS "long;once" PROCESSORS 2)
