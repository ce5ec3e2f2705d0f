#pragma once

#include <wx/panel.h>

#include <vector>

class wxGrid;
class wxStaticText;

/// The row of column titles above a grid; it stands in for the grid's own labels, which are hidden.
class GridHeader : public wxPanel
{
public:
    /// @param parent       window that holds header and grid
    /// @param columnsOf    the grid underneath
    /// @param firstColumn  column of the first title; the columns before it have none
    /// @param titles       one text for each column from `firstColumn` on
    GridHeader(wxWindow* parent, wxGrid& columnsOf, int firstColumn, const std::vector<wxString>& titles);

    /// Gives every title the width of the column beneath it; the last one stretches.
    void followColumns();

private:
    wxGrid& grid;
    int firstTitledColumn;
    std::vector<wxStaticText*> texts;
};

/// Gives a column what the columns before it leave of the grid's width, less 20 pixels for the scroll bar.
/// @param column  the last visible column; it never gets narrower than its minimum
void stretchColumn(wxGrid& grid, int column);
