# What is installed, and the two packages that cpack makes of it:
#   DEB  component "system":   programs under lib/mz6218, launchers on the path, desktop entries, icons
#   TGZ  component "portable": one folder with everything beside the programs, Qt's libraries included
set(programs mz6218 mz6218-cli mz6218-sim mz6218-patterns)
set(samples "${CMAKE_SOURCE_DIR}/patterns/samples")
set(CPACK_PACKAGE_CONTACT "MZ6218 developers <mz6218@localhost>")

foreach(layout system portable)
    if(layout STREQUAL system)
        set(folder lib/mz6218)
        set(common COMPONENT system)
    else()
        set(folder .)
        set(common COMPONENT portable EXCLUDE_FROM_ALL)
    endif()
    install(TARGETS ${programs} RUNTIME DESTINATION ${folder}/bin ${common})
    install(FILES "${CMAKE_BINARY_DIR}/bin/help.pdf" DESTINATION ${folder}/bin ${common})
    install(DIRECTORY "${samples}/" DESTINATION ${folder}/samples ${common}
            FILES_MATCHING PATTERN "*.csv" PATTERN "*.msi" PATTERN "*.adf" PATTERN "*.out")
endforeach()
install(FILES packaging/README.txt DESTINATION . COMPONENT portable EXCLUDE_FROM_ALL)
install(FILES LICENSE docs/licences.md DESTINATION licences COMPONENT portable EXCLUDE_FROM_ALL)
# Its code is in a program of ours, where no library tells of it.
set(cli11_notice /usr/share/doc/libcli11-dev/copyright)
if(EXISTS "${cli11_notice}")
    install(FILES "${cli11_notice}" DESTINATION licences RENAME libcli11.txt COMPONENT portable EXCLUDE_FROM_ALL)
endif()

# What Windows shows of a program: icon, name and version. Written on other systems too, where
# scripts/check-windows.py looks at it.
function(mz_describe_for_windows program icon description)
    set(icon "${CMAKE_SOURCE_DIR}/src/resources/image/${icon}")
    set(description_file "${CMAKE_BINARY_DIR}/packaging/${program}.rc")
    configure_file("${CMAKE_SOURCE_DIR}/packaging/windows/program.rc.in" "${description_file}" @ONLY)
    if(WIN32)
        target_sources(${program} PRIVATE "${description_file}")
    endif()
endfunction()
mz_describe_for_windows(mz6218 pt.ico "MZ6218 Power Meter")
mz_describe_for_windows(mz6218-cli pt.ico "MZ6218 Command Line")
mz_describe_for_windows(mz6218-sim pt.ico "MZ6218 Simulated Instrument")
mz_describe_for_windows(mz6218-patterns patterns.ico "MZ6218 Antenna Patterns")
set_target_properties(mz6218 mz6218-patterns PROPERTIES WIN32_EXECUTABLE ON)

if(UNIX)
    # The console keeps its files beside itself and is started through a launcher; the others write
    # nothing there.
    install(PROGRAMS packaging/linux/mz6218.sh DESTINATION bin RENAME mz6218 COMPONENT system)
    install(CODE "set(programs ${programs})" COMPONENT system)
    install(CODE [[
        set(prefix "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
        file(MAKE_DIRECTORY "${prefix}/bin")
        foreach(program IN LISTS programs)
            if(NOT program STREQUAL "mz6218")
                file(CREATE_LINK "../lib/mz6218/bin/${program}" "${prefix}/bin/${program}" SYMBOLIC)
            endif()
        endforeach()
        # The path to the libraries of the portable layout, which means nothing here.
        foreach(program IN LISTS programs)
            file(RPATH_REMOVE FILE "${prefix}/lib/mz6218/bin/${program}")
        endforeach()]] COMPONENT system)
    install(FILES packaging/linux/mz6218.desktop packaging/linux/mz6218-patterns.desktop
            DESTINATION share/applications COMPONENT system)
    install(DIRECTORY packaging/icons/hicolor DESTINATION share/icons COMPONENT system)

    foreach(program ${programs})
        configure_file(packaging/man/${program}.1 "${CMAKE_BINARY_DIR}/packaging/${program}.1" COPYONLY)
        execute_process(COMMAND gzip --force --keep --best --no-name "${CMAKE_BINARY_DIR}/packaging/${program}.1")
        install(FILES "${CMAKE_BINARY_DIR}/packaging/${program}.1.gz" DESTINATION share/man/man1 COMPONENT system)
    endforeach()
    install(FILES packaging/linux/mz6218-cli.bash-completion DESTINATION share/bash-completion/completions
            RENAME mz6218-cli COMPONENT system)
    install(FILES packaging/linux/mz6218-record@.service DESTINATION lib/systemd/system COMPONENT system)
    install(FILES packaging/linux/sysusers.conf DESTINATION lib/sysusers.d RENAME mz6218.conf COMPONENT system)
    install(FILES packaging/linux/bench1.toml docs/grafana-dashboard.json
            DESTINATION share/doc/mz6218/examples COMPONENT system)
    install(FILES docs/fleet.md DESTINATION share/doc/mz6218 COMPONENT system)

    set(changelog "${CMAKE_BINARY_DIR}/packaging/changelog")
    configure_file(packaging/debian/changelog.in "${changelog}" @ONLY)
    execute_process(COMMAND gzip --force --keep --best --no-name "${changelog}")
    install(FILES "${changelog}.gz" packaging/debian/copyright docs/licences.md
            DESTINATION share/doc/mz6218 COMPONENT system)

    # DT_RPATH, not RUNPATH: only that is looked at for the libraries of libraries and of plugins too.
    set_target_properties(${programs} PROPERTIES INSTALL_RPATH "$ORIGIN/../lib")
    foreach(program ${programs})
        target_link_options(${program} PRIVATE -Wl,--disable-new-dtags)
    endforeach()
    get_target_property(qmake Qt5::qmake IMPORTED_LOCATION)
    foreach(place PLUGINS TRANSLATIONS)
        execute_process(COMMAND "${qmake}" -query QT_INSTALL_${place} OUTPUT_VARIABLE MZ_QT_${place}
                        OUTPUT_STRIP_TRAILING_WHITESPACE)
    endforeach()
    configure_file(packaging/linux/bundle.cmake.in "${CMAKE_BINARY_DIR}/packaging/bundle.cmake" @ONLY)
    install(SCRIPT "${CMAKE_BINARY_DIR}/packaging/bundle.cmake" COMPONENT portable EXCLUDE_FROM_ALL)
endif()

set(CPACK_PACKAGE_NAME mz6218)
set(CPACK_PACKAGE_VENDOR "MZ6218 developers")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Console, recorder, simulator and pattern workbench for the MZ6218")
set(CPACK_PACKAGE_DESCRIPTION
    "Sets, reads, charts and records an MZ6218 RF power meter over a serial
 port or TCP, with a window or unattended, simulates one without hardware, and analyses antenna
 radiation patterns.")
set(CPACK_RESOURCE_FILE_LICENSE "${CMAKE_SOURCE_DIR}/LICENSE")
set(CPACK_GENERATOR "DEB;TGZ")
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA "${CMAKE_SOURCE_DIR}/packaging/debian/postinst"
    "${CMAKE_SOURCE_DIR}/packaging/debian/prerm")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qttranslations5-l10n, fonts-wqy-microhei | fonts-noto-cjk")
set(CPACK_PROJECT_CONFIG_FILE "${CMAKE_SOURCE_DIR}/cmake/MzPackageOptions.cmake")
include(CPack)
