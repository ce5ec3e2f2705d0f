#pragma once

#include "ui/Rgb.h"

#include <wx/grid.h>

#include <map>
#include <tuple>

/// Attributes for the cells of a read-only grid, one per look, shared by all cells of that look.
/// A grid that stores an attribute per coloured cell slows down with every row; this one stores none.
class GridCellStyles
{
public:
    /// The attribute for a text colour and a horizontal alignment (`wxALIGN_LEFT` or `wxALIGN_CENTRE`), vertically
    /// centred, with a reference for the caller.
    wxGridCellAttr* share(Rgb colour, int alignment);

private:
    std::map<std::tuple<int, int, int, int>, wxGridCellAttrPtr> styles;
};
