#pragma once

#include <wx/gdicmn.h>

class wxGrid;
class wxMenu;

/// Opening the context menu of a grid whose rows are selected whole.

/// Opens the menu under the mouse. A row that is not selected is selected first, alone; inside the selection, and where
/// there is no row, the selection stays.
/// @param place  pixels inside the grid's cell window
void popUpMenuUnderMouse(wxGrid& grid, wxMenu& menu, wxPoint place);

/// Opens the menu below the cell that has the grid's cursor, for the keys that ask for a context menu. The selection
/// stays. A grid without rows shows it in its corner.
void popUpMenuAtCursor(wxGrid& grid, wxMenu& menu);
