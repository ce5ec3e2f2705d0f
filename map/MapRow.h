#pragma once

#include "map/RegisterEntry.h"

#include <array>
#include <string>

/// Columns of the map grid, left to right.
enum class MapColumn : int
{
    Marker,
    Address,
    Name,
    Type,
    Size,
    Write,
    Order,
    Description
};

/// Number of columns of the map grid.
constexpr int mapColumnCount = 8;

/// What the text of a cell means; the windows have a colour for each.
enum class MapTone
{
    Plain,        ///< nothing of its own
    Sound,        ///< a used register's address, or a field that passed validation
    Error,        ///< a field that failed validation
    Warning,      ///< the mark of a register in error
    Lock,         ///< the mark of a locked register
    Writable,     ///< a register that may be written
    ReadOnly,     ///< a register that may only be read
    Continuation, ///< a register after the first one of its object
    Free          ///< a register that is not used
};

/// Text of a cell and what it means.
struct MapCell
{
    std::string text; ///< UTF-8
    MapTone tone = MapTone::Plain;
};

/// One row of the map grid, indexed by `MapColumn`.
using MapRow = std::array<MapCell, mapColumnCount>;

/// What the map grid shows for a slot: an object's head in full, its continuation slots as ":", a free slot as its
/// bare address; in front "L" for a locked register, else "!!" for one in error.
MapRow fillMapRow(const RegisterEntry& slot);

/// What a cell has to say that it does not show: "locked" for the address of a locked register, since a free one has no
/// mark for it; the object's own text where a continuation slot shows ":".
/// @return empty for every other cell
std::string mapCellNote(const RegisterEntry& slot, MapColumn column);
