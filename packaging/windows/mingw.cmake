# SPDX-License-Identifier: GPL-3.0-or-later
# Cross-compiling for 64-bit Windows with Debian's packages. The libraries that Debian does not have
# are in the folder of the environment's TAVORNO_WINDOWS_LIBRARIES (see build-libraries).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_AR x86_64-w64-mingw32-gcc-ar-posix)
set(CMAKE_RANLIB x86_64-w64-mingw32-gcc-ranlib-posix)

set(CMAKE_FIND_ROOT_PATH "$ENV{TAVORNO_WINDOWS_LIBRARIES}" /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Windows 10 and later; programs that need nothing beside them.
add_compile_definitions(_WIN32_WINNT=0x0A00 WINVER=0x0A00 UNICODE _UNICODE)
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)

# Programs that a build makes and runs, and the tests, run under wine.
find_program(TAVORNO_WINE wine HINTS /usr/bin NO_CMAKE_FIND_ROOT_PATH)
if(TAVORNO_WINE)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${TAVORNO_WINE})
endif()

# Tools of Qt that run while building are those of this machine.
set(QT_HOST_PATH /usr)
file(GLOB QT_HOST_PATH_CMAKE_DIR /usr/lib/*-linux-gnu/cmake)
