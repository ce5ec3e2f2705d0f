#pragma once

#include "map/RegisterEntry.h"
#include "text/Rgb.h"

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

/// Text of a cell and the colour it is written in.
struct MapCell
{
    std::string text;
    Rgb colour{192, 192, 192}; ///< the colour of cells without one of their own
};

/// One row of the map grid, indexed by `MapColumn`.
using MapRow = std::array<MapCell, mapColumnCount>;

/// What the map grid shows for a slot: an object's head in full, its continuation slots as ":", a free slot as its
/// bare address; in front "L" for a locked register, else "!!" for one in error.
MapRow fillMapRow(const RegisterEntry& slot);
