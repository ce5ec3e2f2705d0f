# One case of installing: cmake -DCASE=... -DBUILD=... -DPREFIX=... -DEXPECTED=... -P installation.cmake
#   PREFIX     a folder for the case, emptied at its start
#   EXPECTED   a file with the installed files' names below the prefix, one a line, in alphabetical order

set(key_file "${PREFIX}/etc/xdg/BELTHORNE LTD/Varnok Software Suite.conf")

function(install_build)
    execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${PREFIX}"
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endfunction()

function(InstallsWhatIsListedAndNothingElse)
    install_build()
    file(GLOB_RECURSE installed RELATIVE "${PREFIX}" "${PREFIX}/*")
    file(STRINGS "${EXPECTED}" expected)
    list(SORT installed)
    list(SORT expected)
    if(NOT installed STREQUAL expected)
        list(JOIN installed "\n  " installed_lines)
        list(JOIN expected "\n  " expected_lines)
        message(FATAL_ERROR "Installed:\n  ${installed_lines}\nexpected:\n  ${expected_lines}")
    endif()
endfunction()

function(LeavesTheKeyFileOfAnInstalledSuite)
    set(key_of_suite "Path=/opt/suite/\n")
    file(WRITE "${key_file}" "${key_of_suite}")
    install_build()
    file(READ "${key_file}" key)
    if(NOT key STREQUAL key_of_suite)
        message(FATAL_ERROR "The suite's key file now holds:\n${key}")
    endif()
endfunction()

function(PointsTheKeyFileAtTheDocuments)
    install_build()
    file(READ "${key_file}" key)
    if(NOT key STREQUAL "Path=${PREFIX}/share/tolvane/\n")
        message(FATAL_ERROR "The key file holds:\n${key}")
    endif()
endfunction()

file(REMOVE_RECURSE "${PREFIX}")
cmake_language(CALL "${CASE}")
file(REMOVE_RECURSE "${PREFIX}")
