# Proves that the includes of every folder point downwards: app -> ui -> map -> source -> json -> files -> text ->
# memory, and beside the windows tool -> review -> map; and that no header of the toolkit is included outside ui/ and
# app/.
# Run as a script: cmake -DSOURCE_DIR=dir -P layers.cmake

cmake_minimum_required(VERSION 3.25)

# Each folder of the core may include those before it, and every folder above may include all of them.
set(core memory text files json source map)
set(below "")
foreach(layer IN LISTS core)
    list(APPEND below "${layer}")
    set(allowed_${layer} ${below})
endforeach()
set(allowed_ui ${core} ui)
set(allowed_app ${core} ui app)
set(allowed_review ${core} review)
set(allowed_tool ${core} review tool)

set(toolkit_layers ui app)
set(offences "")
foreach(layer IN LISTS core ITEMS ui app review tool)
    list(JOIN allowed_${layer} "|" allowed)
    file(GLOB_RECURSE files "${SOURCE_DIR}/${layer}/*.h" "${SOURCE_DIR}/${layer}/*.cpp")
    foreach(path IN LISTS files)
        file(STRINGS "${path}" includes REGEX "^#include \"")
        foreach(line IN LISTS includes)
            if(NOT line MATCHES "^#include \"(${allowed})/")
                string(APPEND offences "${path}: ${line}\n")
            endif()
        endforeach()
        if(NOT layer IN_LIST toolkit_layers)
            file(STRINGS "${path}" includes REGEX "^#include <(wx|gtk|gdk|glib)[/.]")
            foreach(line IN LISTS includes)
                string(APPEND offences "${path}: ${line}\n")
            endforeach()
        endif()
    endforeach()
endforeach()
if(offences)
    message(FATAL_ERROR "Includes that point upwards, or at the toolkit from outside ui/ and app/:\n${offences}")
endif()
