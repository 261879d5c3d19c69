# cmake -D BUILD=... -D CONFIG=... -D STAGE=... -D PREFIX=... -P install.cmake
# Installs a build below STAGE, which is emptied first, and moves what was installed to PREFIX.
file(REMOVE_RECURSE ${STAGE})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --config ${CONFIG} --prefix ${STAGE}/first
  COMMAND_ERROR_IS_FATAL ANY)
file(RENAME ${STAGE}/first ${PREFIX})

# No text that was installed may know the place where it was built or installed.
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
