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
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT CMAKE_DISABLE_PRECOMPILE_HEADERS)
        # What ccache asks for with precompiled headers.
        set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros
                                        "${CCACHE_PROGRAM}")
        add_compile_options(-fpch-preprocess)
    endif()
endif()

# The fastest linker that is there.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND NOT CMAKE_CROSSCOMPILING)
    find_program(MOLD_PROGRAM mold)
    find_program(LLD_PROGRAM ld.lld)
    if(MOLD_PROGRAM)
        add_link_options(-fuse-ld=mold)
    elseif(LLD_PROGRAM)
        add_link_options(-fuse-ld=lld)
    endif()
endif()
