# Builds on Debian for 64-bit Windows: g++-mingw-w64-x86-64-posix, the toolkit that
# packaging/windows/build makes, and Wine to run what was built.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(target x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${target}-gcc-posix)
set(CMAKE_CXX_COMPILER ${target}-g++-posix)
set(CMAKE_RC_COMPILER ${target}-windres)
# The libraries of the compiler go into the program; so does nothing that only a debugger reads.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -s")

# Programs are this machine's; libraries, headers and packages are not.
cmake_path(SET toolkit NORMALIZE ${CMAKE_CURRENT_LIST_DIR}/../../build/windows/toolkit)
set(CMAKE_FIND_ROOT_PATH ${toolkit} /usr/${target})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The toolkit's own programs, such as its compiler of meta-objects.
set(QT_HOST_PATH /usr)
file(GLOB QT_HOST_PATH_CMAKE_DIR /usr/lib/*-linux-gnu/cmake)

set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/wine)
