# cmake -D BUILD=... -D CONFIG=... -D STAGE=... -D PREFIX=... -P install.cmake
# Empties STAGE, installs a build there, and moves the installed tree to PREFIX.
file(REMOVE_RECURSE ${STAGE})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --config ${CONFIG} --prefix ${STAGE}/first
  COMMAND_ERROR_IS_FATAL ANY)
file(RENAME ${STAGE}/first ${PREFIX})

# No installed text may contain the path of the build or of the first installation.
file(GLOB_RECURSE texts ${PREFIX}/*.cmake ${PREFIX}/*.pc ${PREFIX}/*.h)
if(NOT texts)
  message(FATAL_ERROR "nothing was installed")
endif()
foreach(text IN LISTS texts)
  file(READ ${text} content)
  foreach(place ${BUILD} ${STAGE})
    string(FIND "${content}" "${place}" found)
    if(NOT found EQUAL -1)
      message(FATAL_ERROR "${text} holds the path ${place}")
    endif()
  endforeach()
endforeach()
