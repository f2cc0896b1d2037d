# The translations: compiled into ":/qm/", and on request checked for completeness at every build.
option(MZ_CHECK_TRANSLATIONS "Fail the build when a text lacks its translation" ON)

# mz_compile_translations(OUT FILE.ts...): appends to OUT a source that holds the compiled files
# under ":/qm/".
function(mz_compile_translations out)
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/qm")
    set(resource "${folder}/translations.qrc")
    set(entries "")
    foreach(source IN LISTS ARGN)
        get_filename_component(name "${source}" NAME_WE)
        add_custom_command(OUTPUT "${folder}/${name}.qm"
            COMMAND Qt5::lrelease -silent "${source}" -qm "${folder}/${name}.qm"
            DEPENDS "${source}" VERBATIM)
        string(APPEND entries "  <file>${name}.qm</file>\n")
    endforeach()
    file(CONFIGURE OUTPUT "${resource}" CONTENT
        "<!DOCTYPE RCC>\n<RCC version=\"1.0\">\n <qresource prefix=\"/qm\">\n${entries} </qresource>\n</RCC>\n")
    qt5_add_resources(compiled "${resource}")
    set(${out} ${${out}} ${compiled} PARENT_SCOPE)
endfunction()

# mz_check_translations(FILE.ts...): with MZ_CHECK_TRANSLATIONS, a step of the default build that fails
# as long as a text of the sources lacks its translation in one of the files.
function(mz_check_translations)
    if(NOT MZ_CHECK_TRANSLATIONS)
        return()
    endif()
    find_package(Python3 REQUIRED COMPONENTS Interpreter)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS
        "${CMAKE_SOURCE_DIR}/src/*.cpp" "${CMAKE_SOURCE_DIR}/src/*.h" "${CMAKE_SOURCE_DIR}/src/*.ui"
        "${CMAKE_SOURCE_DIR}/patterns/*.cpp" "${CMAKE_SOURCE_DIR}/patterns/*.h"
        "${CMAKE_SOURCE_DIR}/patterns/*.ui"
        "${CMAKE_SOURCE_DIR}/sweep/*.cpp" "${CMAKE_SOURCE_DIR}/sweep/*.h")
    set(script "${CMAKE_SOURCE_DIR}/scripts/translations.py")
    set(stamp "${CMAKE_CURRENT_BINARY_DIR}/translations-complete")
    add_custom_command(OUTPUT "${stamp}"
        COMMAND Python3::Interpreter "${script}" check --lupdate $<TARGET_FILE:Qt5::lupdate>
        COMMAND "${CMAKE_COMMAND}" -E touch "${stamp}"
        DEPENDS "${script}" ${ARGN} ${sources}
        COMMENT "Checking that every text is translated" VERBATIM)
    add_custom_target(mz_translations ALL DEPENDS "${stamp}")
endfunction()
