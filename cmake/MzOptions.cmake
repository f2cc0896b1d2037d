# What can be chosen when the project is configured.
include(CTest)

option(MZ_WERROR "Treat every compiler warning as an error" OFF)
option(MZ_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
option(MZ_BUILD_BENCH "Build the benchmarks" OFF)
option(MZ_BUILD_FUZZ "Build the fuzzers and everything that they feed for them; needs clang" OFF)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Kind of build" FORCE)
endif()

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()
