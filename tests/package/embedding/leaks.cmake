# cmake -D SOURCE=... -D XFM_SOURCE=... -D PLACE=... -P leaks.cmake
# Configures the project that embeds xfm without a build type. It has nothing to install then, so that installing it
# needs no build; with XFM_INSTALL it has.
function(configure result)
  execute_process(COMMAND ${CMAKE_COMMAND} --fresh -G Ninja -S ${SOURCE} -B ${PLACE} -D XFM_SOURCE=${XFM_SOURCE} ${ARGN}
    COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND ${CMAKE_COMMAND} --install ${PLACE} --prefix ${PLACE}/installed
    RESULT_VARIABLE failure OUTPUT_QUIET ERROR_QUIET)
  set(${result} ${failure} PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${PLACE})
configure(failure)
if(failure OR EXISTS ${PLACE}/installed)
  message(FATAL_ERROR "a project that embeds xfm installs it")
endif()
configure(failure -D XFM_INSTALL=ON)
if(NOT failure)
  message(FATAL_ERROR "XFM_INSTALL installs nothing: there should have been files to miss")
endif()
