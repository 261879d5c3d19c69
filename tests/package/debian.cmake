# The Debian packages, made of this build: what is in them, what lintian says of them, and a bare Debian 12 that installs
# them. Only a build of all that Debian gets will do.
find_program(XFM_DPKG_BUILDPACKAGE dpkg-buildpackage)
find_program(XFM_LINTIAN lintian)
mark_as_advanced(XFM_DPKG_BUILDPACKAGE XFM_LINTIAN)
if(NOT XFM_DPKG_BUILDPACKAGE OR NOT XFM_LINTIAN)
  message(STATUS "No dpkg-buildpackage or no lintian: no tests of the Debian packages")
  return()
endif()
set(targets "${XFM_TARGET_NAMES}")
if(NOT CMAKE_BUILD_TYPE STREQUAL "Release" OR NOT CMAKE_CXX_FLAGS STREQUAL "" OR NOT XFM_BENCH
    OR NOT XFM_PYTHON OR NOT TARGET docs OR NOT targets STREQUAL "x86-64;x86-64-v3;x86-64-v4")
  return()
endif()

set(scripts ${CMAKE_CURRENT_SOURCE_DIR}/debian)
set(debian ${CMAKE_CURRENT_BINARY_DIR}/debian)

# xfm_test_packages(NAME OPTION...): makes packages with scripts/package, and checks them.
function(xfm_test_packages name)
  set(packages ${debian}/${name})
  set(made package.debian.${name})
  add_test(NAME ${made} COMMAND ${PROJECT_SOURCE_DIR}/scripts/package ${ARGN} ${packages})
  set_tests_properties(${made} PROPERTIES FIXTURES_SETUP ${made})
  add_test(NAME ${made}.lintian
    COMMAND ${XFM_LINTIAN} --allow-root --fail-on error,warning ${packages}/xfm_${PROJECT_VERSION}_amd64.changes)
  add_test(NAME ${made}.contents COMMAND ${scripts}/contents.sh ${packages} ${PROJECT_SOURCE_DIR} ${packages}/unpacked)
  add_test(NAME ${made}.readme COMMAND ${scripts}/readme.sh ${PROJECT_SOURCE_DIR} ${packages}/unpacked)
  set_tests_properties(${made}.contents PROPERTIES FIXTURES_SETUP ${made}.unpacked)
  set_tests_properties(${made}.lintian ${made}.contents PROPERTIES FIXTURES_REQUIRED ${made})
  set_tests_properties(${made}.readme PROPERTIES FIXTURES_REQUIRED "${made};${made}.unpacked"
    ENVIRONMENT_MODIFICATION LD_LIBRARY_PATH=unset:)
endfunction()
xfm_test_packages(built --built ${PROJECT_BINARY_DIR})
set_tests_properties(package.debian.built PROPERTIES FIXTURES_REQUIRED docs)
xfm_test_packages(clean)
set_tests_properties(package.debian.clean PROPERTIES PROCESSORS 2 TIMEOUT 5400)
foreach(part "" .lintian .contents .readme)
  set_tests_properties(package.debian.clean${part} PROPERTIES LABELS "long;once")
endforeach()

add_test(NAME package.debian.installed COMMAND ${scripts}/chroot.sh ${debian}/built ${PROJECT_SOURCE_DIR} ${debian}/bookworm)
set_tests_properties(package.debian.installed PROPERTIES LABELS "long;once" SKIP_RETURN_CODE 77 FIXTURES_REQUIRED package.debian.built)

# The same bytes from another folder, at another time, under another user name.
find_program(XFM_FAKETIME faketime)
mark_as_advanced(XFM_FAKETIME)
if(XFM_FAKETIME)
  add_test(NAME reproducible.packages COMMAND bash ${PROJECT_SOURCE_DIR}/tests/reproducible/packages.sh
    ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR} ${debian}/built ${XFM_FAKETIME})
  set_tests_properties(reproducible.packages PROPERTIES
    LABELS "long;once" FIXTURES_REQUIRED package.debian.built TIMEOUT 600)
endif()
