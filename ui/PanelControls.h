#pragma once

#include "ui/Rgb.h"
#include "ui/grid/GridColumns.h"

#include <wx/string.h>

class wxFont;
class wxGrid;
class wxGridTableBase;
class wxPanel;
class wxStaticText;
class wxWindow;

/// The controls that both sides of the main window are made of, in the look that they share.
namespace panelControls
{

/// Pixels of a grid row: 25 at 96 dots per inch, or more where the desktop's texts are large. What scrolls beside a
/// grid does so by as much.
int rowHeight(const wxWindow& window);

/// Gives a window its colours.
void dress(wxWindow& window, Rgb text, Rgb background);

/// A text that the user only reads.
/// @param style  the toolkit's styles of such texts
wxStaticText* createText(wxWindow* parent, const wxString& text, const wxFont& font, Rgb colour, long style = 0);

/// A row with a title at its left end; the sizer of the panel takes what comes after it, and goes on in further rows
/// where the first one has no room.
wxPanel* createTitleRow(wxWindow* parent, const wxString& title);

/// An empty grid that is read only and whose rows are selected whole.
/// @param columns  outlive the grid
wxGrid* createGrid(wxWindow* parent, GridColumns columns);

/// Lets a grid show the rows of a table, which it owns from then on; the column widths stay.
void showTable(wxGrid& grid, wxGridTableBase* table);

} // namespace panelControls
