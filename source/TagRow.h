#pragma once

#include "source/TagDatabase.h"

#include <string>

/// What the text of a cell means; the windows have a colour for each.
enum class TagTone
{
    Plain,       ///< nothing of its own
    Integer,     ///< the type of a whole number
    Float,       ///< the type of a number with a fraction
    String,      ///< the type of a text
    UnknownType, ///< a type that the database should not hold
    Flags        ///< the groups that a tag belongs to
};

/// Text of a cell of the tag grid and what it means.
struct TagCell
{
    std::string text; ///< UTF-8
    TagTone tone = TagTone::Plain;
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

/// Content of one cell.
/// @param tagIndex  index of the row's tag in the tag table, 0..65535
/// @param column    0..5; any other column is empty
TagCell tagCell(const TagDatabase& database, int tagIndex, int column);
