# One interface target carries language level, warnings and sanitizers for every target of the project.
# The presets make warnings errors (CMAKE_COMPILE_WARNING_AS_ERROR): whoever builds with another compiler is not stopped.

add_library(project_settings INTERFACE)
target_compile_features(project_settings INTERFACE cxx_std_20)
if(MSVC)
    target_compile_options(project_settings INTERFACE /W4 /utf-8)
else()
    target_compile_options(project_settings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 sees overlapping copies in std::string assignments that have none (GCC bug 105651).
    target_compile_options(project_settings INTERFACE -Wno-restrict)
endif()
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(TOLVANE_SANITIZE)
    target_compile_options(project_settings INTERFACE -fsanitize=${TOLVANE_SANITIZE} -fno-omit-frame-pointer
        -fno-sanitize-recover=all)
    target_link_options(project_settings INTERFACE -fsanitize=${TOLVANE_SANITIZE})
    if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        target_compile_options(project_settings INTERFACE
            "-fsanitize-ignorelist=${CMAKE_CURRENT_LIST_DIR}/sanitizer-ignorelist.txt")
    endif()
endif()

if(TOLVANE_BUILD_FUZZERS)
    # Small tables instead of 65,536 slots and tags: ten times as many inputs in the same time. Nothing else may be built
    # from such a library, and every input that is kept is replayed by the tests at full size.
    if(TOLVANE_BUILD_TESTS OR TOLVANE_BUILD_UI OR TOLVANE_BUILD_BENCHMARKS)
        message(FATAL_ERROR "Fuzzers have small tables: build them alone, as the preset \"fuzz\" does")
    endif()
    target_compile_definitions(project_settings INTERFACE FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()
