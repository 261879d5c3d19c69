# The targets that the library is built for, and the CMake target of each one's library.
set(XFM_TARGET_NAMES x86-64)
set(XFM_LIBRARY_x86-64 xfm)
