# One interface target carries the compiler's settings; every target of ours links it.
add_library(mz_flags INTERFACE)
target_compile_definitions(mz_flags INTERFACE
    MZ_VERSION="${PROJECT_VERSION}"
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH QT_STRICT_ITERATORS
    # The gauge's generator hook uses qsrand and qrand, which vanish one step further.
    QT_DISABLE_DEPRECATED_BEFORE=0x050e00)
if(MSVC)
    target_compile_options(mz_flags INTERFACE /W4 /utf-8 /permissive-)
else()
    target_compile_options(mz_flags INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
        -Woverloaded-virtual -Wold-style-cast -Wcast-align -Wcast-qual -Wformat=2
        -Wimplicit-fallthrough -Wundef -Wredundant-decls)
endif()
if(MZ_WERROR)
    target_compile_options(mz_flags INTERFACE $<IF:$<CXX_COMPILER_ID:MSVC>,/WX,-Werror>)
endif()
if(MZ_SANITIZE)
    # The sanitizers' own code makes GCC see uninitialised variables where there are none.
    target_compile_options(mz_flags INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer
                                              -fno-sanitize-recover=all -Wno-maybe-uninitialized)
    target_link_options(mz_flags INTERFACE -fsanitize=address,undefined)
endif()
if(MZ_BUILD_FUZZ)
    target_compile_options(mz_flags INTERFACE -fsanitize=fuzzer-no-link,address,undefined
                                              -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(mz_flags INTERFACE -fsanitize=address,undefined)
endif()

# mz_add_program(NAME SOURCES ... LIBRARIES ...): a program in build/bin with the shared resources.
function(mz_add_program name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE mz_flags ${ARG_LIBRARIES})
endfunction()

# mz_add_test(NAME SOURCES ... LIBRARIES ... [LABELS ...]): a QtTest program with a folder of its own,
# since the console keeps its settings and records beside the program that runs.
function(mz_add_test name)
    cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LIBRARIES;LABELS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE mz_flags ${ARG_LIBRARIES} mz_testsupport Qt5::Test)
    target_compile_definitions(${name} PRIVATE MZ_TEST_DATA="${CMAKE_SOURCE_DIR}/tests/data"
                                               MZ_BIN_DIR="${CMAKE_BINARY_DIR}/bin")
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY
                                             "${CMAKE_BINARY_DIR}/tests/${name}")
    add_test(NAME ${name} COMMAND ${name} WORKING_DIRECTORY "${CMAKE_BINARY_DIR}/tests/${name}")
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 300)
    endif()
    set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT} LABELS "${ARG_LABELS}"
                         ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;TZ=UTC")
endfunction()
