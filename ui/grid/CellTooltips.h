#pragma once

class wxGrid;

/// Shows as a tooltip what the cell under the mouse has no room for, or does not say at all.
/// @param grid  with a `VirtualGridTable`, now or later
void showCellTooltips(wxGrid& grid);
