# Installs the key file that says where the suite lies, with the documents that Help offers below it. An installed suite
# has one of its own, which is left as it is.
#   configuration_folder   where the desktop's configuration is, absolute or below the prefix
#   suite_folder           where this program's documents are, below the prefix

if(NOT IS_ABSOLUTE "${configuration_folder}")
    # What belongs to the system has its configuration in /etc, not in /usr/etc.
    string(REGEX REPLACE "^/usr/?$" "" configuration_prefix "${CMAKE_INSTALL_PREFIX}")
    set(configuration_folder "${configuration_prefix}/${configuration_folder}")
endif()
set(key_file "${configuration_folder}/BELTHORNE LTD/Varnok Software Suite.conf")

if(EXISTS "$ENV{DESTDIR}${key_file}")
    message(STATUS "Kept: $ENV{DESTDIR}${key_file}")
else()
    message(STATUS "Installing: $ENV{DESTDIR}${key_file}")
    file(WRITE "$ENV{DESTDIR}${key_file}" "Path=${CMAKE_INSTALL_PREFIX}/${suite_folder}/\n")
    file(CHMOD "$ENV{DESTDIR}${key_file}" PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
    list(APPEND CMAKE_INSTALL_MANIFEST_FILES "${key_file}")
endif()
