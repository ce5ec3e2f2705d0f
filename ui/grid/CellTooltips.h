#pragma once

class wxGrid;

/// Shows as a tooltip what the cell under the mouse has no room for, or keeps to itself.
/// @param grid  with a `VirtualGridTable`, now or later
void showCellTooltips(wxGrid& grid);
