# Read by cpack once for each kind of package: which of the two layouts goes into it, and where.
if(CPACK_GENERATOR STREQUAL "DEB")
    set(CPACK_COMPONENTS_ALL system)
    set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
else()
    set(CPACK_COMPONENTS_ALL portable)
    set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
endif()
