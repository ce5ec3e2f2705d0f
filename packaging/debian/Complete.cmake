# Completes the installed files with what only a Debian package has: stripped programs, compressed manual pages and
# changelogs, lintian's list of exceptions, and the time of the commit on everything, so that the same commit gives the
# same bytes.

set(share "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share")
set(documents "${share}/doc/${CPACK_PACKAGE_NAME}")

# compress FILE...: puts FILE.gz in its place, without the name and the time that gzip would write into it.
function(compress)
    execute_process(COMMAND gzip --best --no-name --force ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(GLOB programs "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/bin/*")
execute_process(COMMAND strip --remove-section=.comment --remove-section=.note ${programs} COMMAND_ERROR_IS_FATAL ANY)

file(COPY_FILE "${CPACK_TOLVANE_CHANGELOG}" "${documents}/changelog")
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
file(WRITE "${documents}/changelog.Debian"
"${CPACK_PACKAGE_NAME} (${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) bookworm; urgency=medium

  * Package of this version; what changed in it is in changelog.gz.

 -- ${CPACK_DEBIAN_PACKAGE_MAINTAINER}  ${date}
")
file(GLOB pages "${share}/man/man1/*.1")
compress("${documents}/changelog" "${documents}/changelog.Debian" ${pages})

file(MAKE_DIRECTORY "${share}/lintian/overrides")
file(COPY_FILE "${CMAKE_CURRENT_LIST_DIR}/lintian-overrides" "${share}/lintian/overrides/${CPACK_PACKAGE_NAME}")

execute_process(COMMAND find "${CPACK_TEMPORARY_INSTALL_DIRECTORY}" -type d -exec chmod 755 "{}" +
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND find "${documents}" "${share}/lintian" "${share}/man" -type f -exec chmod 644 "{}" +
    COMMAND_ERROR_IS_FATAL ANY)
if(DEFINED ENV{SOURCE_DATE_EPOCH})
    execute_process(COMMAND find "${CPACK_TEMPORARY_INSTALL_DIRECTORY}"
        -exec touch --no-dereference "--date=@$ENV{SOURCE_DATE_EPOCH}" "{}" +
        COMMAND_ERROR_IS_FATAL ANY)
endif()
