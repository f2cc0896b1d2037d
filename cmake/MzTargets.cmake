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

# Includes are written from these two roots, so that each names the room of what it includes.
target_include_directories(mz_flags INTERFACE "${CMAKE_SOURCE_DIR}/src" "${CMAKE_SOURCE_DIR}")

# Qt's headers are compiled once for each set of its modules that targets stand on. A set may define
# nothing that its users do not define as well, or the compiler would not take it.
foreach(module Core Widgets Charts)
    file(WRITE "${CMAKE_BINARY_DIR}/headers/${module}.cpp" "")
    add_library(mz_headers_${module} OBJECT "${CMAKE_BINARY_DIR}/headers/${module}.cpp")
    target_link_libraries(mz_headers_${module} PRIVATE mz_flags Qt5::${module})
    target_precompile_headers(mz_headers_${module} PRIVATE <Qt${module}>)
    set_target_properties(mz_headers_${module} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
endforeach()
target_precompile_headers(mz_headers_Charts PRIVATE <QtWidgets>)

# mz_precompile(NAME): lets NAME take the headers of what it links.
function(mz_precompile name)
    get_target_property(libraries ${name} LINK_LIBRARIES)
    set(module Core)
    foreach(library IN LISTS libraries)
        set(taken "")
        if(library MATCHES "^Qt5::(Widgets|PrintSupport|Charts)$")
            string(REGEX REPLACE "PrintSupport" "Widgets" taken "${CMAKE_MATCH_1}")
        elseif(TARGET ${library})
            get_target_property(taken ${library} MZ_HEADERS)
        endif()
        if(taken STREQUAL Charts OR (taken STREQUAL Widgets AND module STREQUAL Core))
            set(module ${taken})
        endif()
    endforeach()
    set_target_properties(${name} PROPERTIES MZ_HEADERS ${module})
    target_precompile_headers(${name} REUSE_FROM mz_headers_${module})
endfunction()

# mz_note_layer(NAME LIBRARIES SOURCES): a line of the list that scripts/layers.py reads.
function(mz_note_layer name libraries sources)
    file(RELATIVE_PATH folder "${CMAKE_SOURCE_DIR}" "${CMAKE_CURRENT_SOURCE_DIR}")
    list(TRANSFORM sources PREPEND "${folder}/")
    set_property(GLOBAL APPEND_STRING PROPERTY MZ_LAYERS "${name}|${libraries}|${sources}\n")
    add_dependencies(${name} mz_layers)
endfunction()

# mz_add_layer(NAME SOURCES ... LIBRARIES ...): the library of one folder. What it links is what its
# sources may include; scripts/layers.py holds them to it at every build.
function(mz_add_layer name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC ${ARG_LIBRARIES} PRIVATE mz_flags)
    mz_precompile(${name})
    mz_note_layer(${name} "${ARG_LIBRARIES}" "${ARG_SOURCES}")
endfunction()

add_custom_target(mz_layers
    COMMAND "${Python3_EXECUTABLE}" "${CMAKE_SOURCE_DIR}/scripts/layers.py" check "${CMAKE_BINARY_DIR}/layers.txt"
    COMMENT "Holding includes to the layers" VERBATIM)

# mz_write_layers(): after the last layer, writes the list that scripts/layers.py reads.
function(mz_write_layers)
    get_property(layers GLOBAL PROPERTY MZ_LAYERS)
    file(GENERATE OUTPUT "${CMAKE_BINARY_DIR}/layers.txt" CONTENT "${layers}")
endfunction()

# mz_add_program(NAME SOURCES ... LIBRARIES ...): a program in build/bin.
function(mz_add_program name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE mz_flags ${ARG_LIBRARIES})
    mz_precompile(${name})
    mz_note_layer(${name} "${ARG_LIBRARIES}" "${ARG_SOURCES}")
endfunction()

# mz_add_test(NAME SOURCES ... LIBRARIES ... [LABELS ...] [COST n]): a QtTest program with a folder of its
# own, since the console keeps its settings and records beside the program that runs; greater costs start first.
function(mz_add_test name)
    cmake_parse_arguments(ARG "" "TIMEOUT;COST" "SOURCES;LIBRARIES;LABELS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE mz_flags ${ARG_LIBRARIES} mz_testsupport Qt5::Test)
    mz_precompile(${name})
    target_compile_definitions(${name} PRIVATE MZ_TEST_DATA="${CMAKE_SOURCE_DIR}/tests/data"
                                               MZ_BIN_DIR="${CMAKE_BINARY_DIR}/bin")
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY
                                             "${CMAKE_BINARY_DIR}/tests/${name}")
    add_test(NAME ${name} COMMAND ${name} WORKING_DIRECTORY "${CMAKE_BINARY_DIR}/tests/${name}")
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 300)
    endif()
    if(NOT ARG_COST)
        set(ARG_COST 1)
    endif()
    set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT} COST ${ARG_COST} LABELS "${ARG_LABELS}"
                         ENVIRONMENT "QT_QPA_PLATFORM=offscreen;TZ=UTC")
endfunction()
