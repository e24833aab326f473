# The toolchain of tools/build-windows: Debian's mingw-w64 with the threads of POSIX. Only what that
# brings and what the script itself has built is there for the programs; this system's own is not.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

get_filename_component(built ${CMAKE_CURRENT_LIST_DIR}/../build/windows ABSOLUTE)
set(CMAKE_FIND_ROOT_PATH ${built}/qt ${built}/libraries /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# An inline function of many sources is there once, and any of its copies may be the one: what a caller
# has learnt of the registers of its own copy need not hold, yet here the compiler goes by it.
set(CMAKE_CXX_FLAGS_INIT -fno-ipa-ra)

# A program needs no library beside it, and is the same whenever it is linked.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -s -Wl,--no-insert-timestamp")
set(ZLIB_USE_STATIC_LIBS ON)

# The tools of Qt that run during the build are this system's; the library is made of the source of
# the same package.
set(QT_HOST_PATH /usr)
file(GLOB host_info /usr/lib/*/cmake/Qt6HostInfo)
get_filename_component(QT_HOST_PATH_CMAKE_DIR "${host_info}" DIRECTORY)
