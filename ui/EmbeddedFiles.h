#pragma once

#include <span>
#include <string_view>

/// The bytes of a file that was built into the executable, valid until the program ends.
/// @param name  file name without extension, for example "png_tool_copy@2x"
/// @return no bytes when there is no such file
std::span<const unsigned char> embeddedFile(std::string_view name);
