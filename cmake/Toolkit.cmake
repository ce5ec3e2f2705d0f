# The GUI toolkit as one target. Its headers are SYSTEM: our warnings are about our code.

find_package(wxWidgets 3.2 REQUIRED COMPONENTS core base)
add_library(toolkit INTERFACE)
target_include_directories(toolkit SYSTEM INTERFACE ${wxWidgets_INCLUDE_DIRS})
target_compile_definitions(toolkit INTERFACE ${wxWidgets_DEFINITIONS})
target_compile_options(toolkit INTERFACE ${wxWidgets_CXX_FLAGS})
target_link_libraries(toolkit INTERFACE ${wxWidgets_LIBRARIES})
