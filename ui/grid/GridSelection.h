#pragma once

#include <vector>

class wxGrid;

/// The selected rows of a grid, ascending and each once.
/// Reads the grid's selection blocks: its own list of selected rows takes a second for a full space.
std::vector<int> selectedRows(const wxGrid& grid);

/// Adds rows to the selection of a grid, neighbouring rows as one block.
/// @param rows  ascending, each a row of the grid
void addToSelection(wxGrid& grid, const std::vector<int>& rows);
