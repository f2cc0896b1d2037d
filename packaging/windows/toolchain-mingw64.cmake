# Builds for 64-bit Windows with mingw-w64; docs/windows.md says how. moc, uic and rcc come with the Qt in
# CMAKE_PREFIX_PATH, as programs of the building machine, lrelease from the building machine's own Qt.
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

# The roots above hide this machine's packages, and a Qt for Windows has no linguist tools that run here.
file(GLOB linguist /usr/lib/*/cmake/Qt5LinguistTools /usr/lib/cmake/Qt5LinguistTools
     /usr/lib64/cmake/Qt5LinguistTools)
if(linguist AND NOT Qt5LinguistTools_DIR)
    list(GET linguist 0 linguist)
    set(Qt5LinguistTools_DIR "${linguist}" CACHE PATH "The linguist tools of the building machine")
endif()

# A library of headers alone is the building machine's, taken out from among its other headers.
find_path(CLI11_HEADERS CLI/CLI.hpp PATHS /usr/include /usr/local/include NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
if(CLI11_HEADERS AND NOT CLI11_DIR)
    set(CLI11_DIR "${CMAKE_BINARY_DIR}/CLI11" CACHE PATH "The headers of CLI11 alone")
    file(COPY "${CLI11_HEADERS}/CLI" DESTINATION "${CLI11_DIR}/include")
    file(WRITE "${CLI11_DIR}/CLI11Config.cmake" [[
        if(NOT TARGET CLI11::CLI11)
            add_library(CLI11::CLI11 INTERFACE IMPORTED)
            target_include_directories(CLI11::CLI11 INTERFACE "${CMAKE_CURRENT_LIST_DIR}/include")
        endif()
]])
endif()

# Tests run where they are built as far as Wine is there, for which this machine's folders lie on a drive.
find_program(wine NAMES wine64 wine)
if(wine)
    set(CMAKE_CROSSCOMPILING_EMULATOR "${wine}")
    set(MZ_DRIVE Z:)
endif()
