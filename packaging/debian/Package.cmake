# The Debian package, which scripts/package makes from a build of the preset "package".

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tolvane)
set(CPACK_PACKAGE_VENDOR "BELTHORNE LTD")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_LIST_DIR}/Complete.cmake")
set(CPACK_TOLVANE_CHANGELOG "${PROJECT_SOURCE_DIR}/CHANGELOG.md")

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "BELTHORNE LTD <tolvane@belthorne.example>")
set(CPACK_DEBIAN_PACKAGE_SECTION electronics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Help hands the guide to the desktop's opener, which asks a viewer.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils, evince | pdf-viewer")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "editor for the Modbus register maps of a plant")
set(CPACK_PACKAGE_DESCRIPTION
"Opens a plant's tag database and its Modbus register map, publishes tags on
registers of the four spaces (Coil, Input, Status, Holding), moves and locks
them, marks at once what is wrong, and saves a file that a controller then
runs. With it come tolvane-map, which checks, compares and exports maps for
scripts and reviewers, the user guide and a sample plant.")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA "${CMAKE_CURRENT_LIST_DIR}/conffiles")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)

include(CPack)
