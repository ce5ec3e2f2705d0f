#pragma once

#include "map/RegisterSpace.h"

#include <array>

/// One of the buttons that choose the space to show.
struct SpaceButton
{
    RegisterSpace space;
    const char* image; ///< picture of a space that is not shown; name + "_pressed" that of the one that is
    const char* tooltip;
};

/// The space buttons, left to right.
constexpr std::array<SpaceButton, spaceCount> spaceButtonOrder{
    {{RegisterSpace::Status, "png_tool_status", "Show Status Registers"},
     {RegisterSpace::Coil, "png_tool_coil", "Show Coil Registers"},
     {RegisterSpace::Input, "png_tool_input", "Show Input Registers"},
     {RegisterSpace::Holding, "png_tool_holding", "Show Holding Registers"}}};
