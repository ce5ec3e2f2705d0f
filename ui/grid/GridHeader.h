#pragma once

#include "ui/grid/GridColumns.h"

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
    /// @param gridColumns  its columns; they outlive the header
    GridHeader(wxWindow* parent, wxGrid& columnsOf, GridColumns gridColumns);

    /// Gives every title the width of the column beneath it; the last one stretches.
    void followColumns();

    /// Gives the last seen column what the columns before it leave of the grid's width, less 20 pixels for the scroll
    /// bar; it never gets narrower than its minimum.
    void stretchLastColumn();

private:
    struct Title
    {
        int column = 0;
        wxStaticText* text = nullptr;
    };

    wxStaticText* createTitle(std::string_view title);

    wxGrid& grid;
    GridColumns columns;
    std::vector<Title> titles;
};
