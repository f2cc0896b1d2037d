# Builds for 64-bit Windows with mingw-w64:
#   cmake -B build-windows -DCMAKE_TOOLCHAIN_FILE=packaging/windows/toolchain-mingw64.cmake
#         -DCMAKE_PREFIX_PATH=<Qt 5.15 for mingw> -DBUILD_TESTING=OFF
# moc, uic, rcc and lrelease must be those of the building machine, of the same Qt version.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(prefix x86_64-w64-mingw32)
find_program(CMAKE_C_COMPILER NAMES ${prefix}-gcc-posix ${prefix}-gcc REQUIRED)
find_program(CMAKE_CXX_COMPILER NAMES ${prefix}-g++-posix ${prefix}-g++ REQUIRED)
find_program(CMAKE_RC_COMPILER NAMES ${prefix}-windres REQUIRED)

set(CMAKE_FIND_ROOT_PATH /usr/${prefix} ${CMAKE_PREFIX_PATH})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
