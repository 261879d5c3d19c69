# Core services and the version report.

add_test(NAME package.core.exports
  COMMAND sh ${CMAKE_CURRENT_SOURCE_DIR}/exports.sh ${CMAKE_NM} $<TARGET_FILE:xfmcore> ownGetFeature xfmFree xfmMalloc)

# The reports, by a program that defines ownGetFeature itself; once with each form of the library.
add_executable(package_version version_test.cpp)
target_link_libraries(package_version PRIVATE xfm::xfm xfm::xfmcore xfm_test_main xfm_options)
xfm_run_on_targets(package.version package_version --gtest_brief=1)
add_executable(package_version_static version_test.cpp)
target_link_libraries(package_version_static PRIVATE xfm::xfm_static)

add_executable(package_memory memory_test.cpp)
target_link_libraries(package_memory PRIVATE xfm::xfmcore)
add_executable(package_memory_static memory_test.cpp)
target_link_libraries(package_memory_static PRIVATE xfm::xfmcore_static)

foreach(program package_version_static package_memory package_memory_static)
  target_link_libraries(${program} PRIVATE xfm_options GTest::gtest_main)
  string(REGEX REPLACE "^package_[a-z]+_?" "" form ${program})
  # An impossible request gives a null pointer under the address sanitizer too.
  gtest_discover_tests(${program} TEST_PREFIX package. TEST_SUFFIX "$<$<BOOL:${form}>:.${form}>"
    PROPERTIES ENVIRONMENT ASAN_OPTIONS=allocator_may_return_null=1)
endforeach()

# One program with two cores: the usual one, and another that the loader finds first.
add_executable(package_say_name say_name.c)
target_link_libraries(package_say_name PRIVATE xfm::xfm xfm_options)
add_library(package_other_core SHARED other_core.cpp)
target_link_libraries(package_other_core PRIVATE xfm_options)
target_include_directories(package_other_core PRIVATE ${PROJECT_SOURCE_DIR}/core/include)
set_target_properties(package_other_core PROPERTIES
  OUTPUT_NAME xfmcore SOVERSION ${XFM_SOVERSION} LIBRARY_OUTPUT_DIRECTORY other_core)

add_test(NAME package.core.own COMMAND package_say_name)
add_test(NAME package.core.replaced COMMAND package_say_name)
set_tests_properties(package.core.own PROPERTIES PASS_REGULAR_EXPRESSION "^xfmq9-6\\.1\\.dll\n$")
set_tests_properties(package.core.replaced PROPERTIES PASS_REGULAR_EXPRESSION "^xfmq9-6\\.1\\.dll\\+\n$"
  ENVIRONMENT LD_LIBRARY_PATH=$<TARGET_FILE_DIR:package_other_core>)
