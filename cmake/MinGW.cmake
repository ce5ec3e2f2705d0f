# Toolchain file of the cross build: MinGW-w64 compiles, the libraries of scripts/windows-libraries are linked, Wine runs
# what was built.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# The variant with POSIX threads: the other one has no std::thread.
set(mingw x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${mingw}-gcc-posix)
set(CMAKE_CXX_COMPILER ${mingw}-g++-posix)
set(CMAKE_RC_COMPILER ${mingw}-windres)

# Kept in CMake's cache, because a later build configures again without the environment of the first.
if(DEFINED ENV{TOLVANE_WINDOWS_CACHE})
    set(default_cache "$ENV{TOLVANE_WINDOWS_CACHE}")
elseif(DEFINED ENV{XDG_CACHE_HOME})
    set(default_cache "$ENV{XDG_CACHE_HOME}/tolvane-windows")
else()
    set(default_cache "$ENV{HOME}/.cache/tolvane-windows")
endif()
set(TOLVANE_WINDOWS_CACHE "${default_cache}" CACHE PATH "Where the libraries for Windows are kept")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TOLVANE_WINDOWS_CACHE)

set(CMAKE_FIND_ROOT_PATH "${TOLVANE_WINDOWS_CACHE}/libraries" /usr/${mingw})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} "${TOLVANE_WINDOWS_CACHE}/libraries/lib/pkgconfig")
set(wxWidgets_CONFIG_EXECUTABLE "${TOLVANE_WINDOWS_CACHE}/libraries/bin/wx-config" CACHE FILEPATH "")

# Nobody has the compiler's own libraries.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)

set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../tests/with-wine")
