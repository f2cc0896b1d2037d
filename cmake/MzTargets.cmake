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

# Tests are compiled more often than they run: the optimiser would take more time than it saves.
set(MZ_TEST_OPTIONS "")
if(NOT MSVC)
    set(MZ_TEST_OPTIONS $<$<CONFIG:Release>:-O0>)
endif()

# The headers that many sources include are compiled once for what is shipped and once for tests. A target
# takes them only if it defines whatever they were compiled with, so that of Qt's modules they link none
# that a user does not. More headers would cost more than they save: each source reads all of it.
set(headers
    algorithm array atomic cerrno charconv cmath cstdio cstdlib deque functional limits memory optional utility vector
    QApplication QBuffer QByteArray QChart QClipboard QColor QComboBox QCoreApplication QDate QDateTime QDebug QDialog
    QDialogButtonBox QDir QDoubleSpinBox QElapsedTimer QEvent QFile QFileDialog QFileInfo QFont QFontInfo QFontMetricsF
    QFormLayout QGraphicsItem QGraphicsScene QGraphicsSceneMouseEvent QHBoxLayout QHeaderView QIcon QJsonDocument
    QJsonObject QKeyEvent QLabel QLegend QLineEdit QLineF QLineSeries QList QLocale QLockFile QMainWindow QMap
    QMessageBox QMetaType QMimeData QObject QPainter QPen QPixmap QPoint QPointF QPushButton QRectF
    QRegularExpression QScopedValueRollback QSignalBlocker QSize QString QStringList QTableWidget QTextCodec
    QTextStream QTimer QUrl QVBoxLayout QValueAxis QVector QWidget QtGlobal QtMath)
list(TRANSFORM headers REPLACE ".+" "<\\0>")
file(WRITE "${CMAKE_BINARY_DIR}/headers.cpp" "")
foreach(name mz_headers mz_test_headers)
    add_library(${name} OBJECT EXCLUDE_FROM_ALL "${CMAKE_BINARY_DIR}/headers.cpp")
    target_link_libraries(${name} PRIVATE mz_flags Qt5::Core)
    foreach(module Gui Widgets Charts)
        target_include_directories(${name} SYSTEM PRIVATE
            $<TARGET_PROPERTY:Qt5::${module},INTERFACE_INCLUDE_DIRECTORIES>)
    endforeach()
    target_precompile_headers(${name} PRIVATE ${headers})
    set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
endforeach()
target_link_libraries(mz_test_headers PRIVATE Qt5::Widgets Qt5::Network Qt5::Test)
target_precompile_headers(mz_test_headers PRIVATE <QtTest>)
target_compile_options(mz_test_headers PRIVATE ${MZ_TEST_OPTIONS})

# mz_compile(NAME [HEADERS]): what all targets have in common. What moc writes is compiled among the sources,
# since by itself most of it would be Qt's headers.
function(mz_compile name)
    set(headers ${ARGN} mz_headers)
    list(GET headers 0 headers)
    target_link_libraries(${name} PRIVATE mz_flags)
    target_precompile_headers(${name} REUSE_FROM ${headers})
    set(mocs "${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/mocs_compilation.cpp")
    set(wrapper "${CMAKE_CURRENT_BINARY_DIR}/${name}_mocs.cpp")
    file(CONFIGURE OUTPUT "${wrapper}" CONTENT "#include \"${mocs}\"\n")
    set_source_files_properties("${mocs}" PROPERTIES HEADER_FILE_ONLY ON)
    set_source_files_properties("${wrapper}" PROPERTIES SKIP_AUTOGEN ON)
    target_sources(${name} PRIVATE "${wrapper}")
endfunction()

# mz_compile_test(NAME): the same for what serves tests alone.
function(mz_compile_test name)
    target_link_libraries(${name} PRIVATE Qt5::Widgets Qt5::Network Qt5::Test)
    target_compile_options(${name} PRIVATE ${MZ_TEST_OPTIONS})
    mz_compile(${name} mz_test_headers)
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
    target_link_libraries(${name} PUBLIC ${ARG_LIBRARIES})
    mz_compile(${name})
    mz_note_layer(${name} "${ARG_LIBRARIES}" "${ARG_SOURCES}")
endfunction()

# Elsewhere targets lack the sources that only Unix has, which others include there.
if(UNIX)
    add_custom_target(mz_layers
        COMMAND "${Python3_EXECUTABLE}" "${CMAKE_SOURCE_DIR}/scripts/layers.py" check "${CMAKE_BINARY_DIR}/layers.txt"
        COMMENT "Holding includes to the layers" VERBATIM)
else()
    add_custom_target(mz_layers)
endif()

# mz_write_layers(): after the last layer, writes the list that scripts/layers.py reads.
function(mz_write_layers)
    get_property(layers GLOBAL PROPERTY MZ_LAYERS)
    file(GENERATE OUTPUT "${CMAKE_BINARY_DIR}/layers.txt" CONTENT "${layers}")
endfunction()

# mz_add_program(NAME SOURCES ... LIBRARIES ...): a program in build/bin.
function(mz_add_program name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LIBRARIES})
    mz_compile(${name})
    mz_note_layer(${name} "${ARG_LIBRARIES}" "${ARG_SOURCES}")
endfunction()

# mz_add_tests(NAME SOURCES ... LIBRARIES ... [DEFINITIONS ...] [LABELS ...]): one program for the classes of
# a folder, since most of their cost is Qt's headers. Each source "tst_*.cpp" is a test, run by a copy of the
# program that bears its name, in a folder of its own, since the console keeps its settings and records
# beside the program that runs.
function(mz_add_tests name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES;DEFINITIONS;LABELS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES} "${CMAKE_SOURCE_DIR}/tests/support/main.cpp")
    target_link_libraries(${name} PRIVATE ${ARG_LIBRARIES} mz_testsupport)
    mz_compile_test(${name})
    target_compile_definitions(${name} PRIVATE MZ_BIN_DIR="${MZ_DRIVE}${CMAKE_BINARY_DIR}/bin" ${ARG_DEFINITIONS})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    list(FILTER ARG_SOURCES INCLUDE REGEX "^tst_.*\\.cpp$")
    foreach(source IN LISTS ARG_SOURCES)
        get_filename_component(test "${source}" NAME_WE)
        set(folder "${CMAKE_BINARY_DIR}/tests/${test}")
        set(program "${folder}/${test}${CMAKE_EXECUTABLE_SUFFIX}")
        file(MAKE_DIRECTORY "${folder}")
        add_custom_command(TARGET ${name} POST_BUILD VERBATIM
                           COMMAND "${CMAKE_COMMAND}" -E copy "$<TARGET_FILE:${name}>" "${program}")
        add_test(NAME ${test} COMMAND ${CMAKE_CROSSCOMPILING_EMULATOR} "${program}" WORKING_DIRECTORY "${folder}")
        set_tests_properties(${test} PROPERTIES TIMEOUT 300 LABELS "${ARG_LABELS}"
                                                ENVIRONMENT "QT_QPA_PLATFORM=offscreen;TZ=UTC")
    endforeach()
endfunction()
