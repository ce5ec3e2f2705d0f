#pragma once

#include "source/TagDatabase.h"
#include "text/Rgb.h"

#include <string>

/// What a cell of the tag grid shows.
struct TagCell
{
    std::string text; ///< UTF-8
    Rgb colour;       ///< of the text
};

/// Columns of the tag grid, left to right.
enum class TagColumn
{
    Name,
    Type,
    Size,
    Flags,
    Description,
    Index
};

/// Number of columns of the tag grid.
constexpr int tagColumnCount = 6;

/// Colour of cells that have none of their own.
constexpr Rgb plainTagColour{192, 192, 192};

/// Content of one cell.
/// @param tagIndex  index of the row's tag in the tag table, 0..65535
/// @param column    0..5; any other column is empty
TagCell tagCell(const TagDatabase& database, int tagIndex, int column);
