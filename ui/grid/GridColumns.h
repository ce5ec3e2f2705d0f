#pragma once

#include <wx/defs.h>

#include <array>
#include <span>
#include <string_view>

/// A column of one of the grids.
struct GridColumn
{
    const char* label;           ///< the toolkit's name for it; hidden, since the title stands in for it
    std::string_view title;      ///< text above it; empty for none
    std::string_view widestText; ///< the widest of the texts it is made for; empty where they may be of any width
    std::string_view usualText;  ///< where they may be of any width, one that is seen whole when the column opens
    int width;                   ///< pixels at 96 dots per inch with which it opens; 0 if it is never seen
    int alignment;               ///< of its texts: `wxALIGN_LEFT` or `wxALIGN_CENTRE`
};

/// The columns of a grid, left to right.
using GridColumns = std::span<const GridColumn>;

/// Columns of the tag grid, as `TagColumn` names them. The index is there for whoever reads a row, not to be seen.
inline constexpr std::array<GridColumn, 6> tagColumns{{
    {"Name", "TAGNAME", "", "PUMP_01_SPEED_HIGH", 170, wxALIGN_LEFT},
    {"Type", "TYPE", "Unknown", "", 70, wxALIGN_CENTRE},
    {"Size", "SIZE", "255", "", 50, wxALIGN_CENTRE},
    {"Flags", "FLAGS", "", "ALM-SET", 70, wxALIGN_CENTRE},
    {"Description", "DESCRIPTION", "", "", 180, wxALIGN_LEFT},
    {"DbIndex", "", "", "", 0, wxALIGN_LEFT},
}};

/// Columns of the map grid, as `MapColumn` names them.
inline constexpr std::array<GridColumn, 8> mapColumns{{
    {"*", "", "!!", "", 20, wxALIGN_CENTRE},
    {"Address", "ADDRESS", "00000", "", 60, wxALIGN_LEFT},
    {"Name", "TAGNAME", "", "PUMP_01_SPEED_HIGH", 170, wxALIGN_LEFT},
    {"Type", "TYPE", "DOUBLE", "", 60, wxALIGN_LEFT},
    {"Size", "SIZE", "000", "", 40, wxALIGN_LEFT},
    {"Write", "R/W", "Write", "", 50, wxALIGN_LEFT},
    {"Order", "ORDER", "BWL", "", 50, wxALIGN_LEFT},
    {"Description", "DESCRIPTION", "", "", 30, wxALIGN_LEFT},
}};

/// The last column that is seen; it takes the room that the others leave.
constexpr int lastSeenColumn(GridColumns columns)
{
    int last = static_cast<int>(columns.size()) - 1;
    while (last > 0 && columns[static_cast<std::size_t>(last)].width == 0)
        --last;
    return last;
}
