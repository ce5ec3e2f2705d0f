#pragma once

#include "ui/QuietPanel.h"
#include "ui/grid/ColumnDrag.h"
#include "ui/grid/GridColumns.h"

#include <vector>

class wxGrid;
class wxStaticText;

/// The row of column titles above a grid; it stands in for the grid's own labels, which are hidden.
class GridHeader : public QuietPanel
{
public:
    /// Pixels between two titles.
    static constexpr int titleGap = 5;

    /// @param parent       window that holds header and grid
    /// @param columnsOf    the grid underneath
    /// @param gridColumns  its columns; they outlive the header
    GridHeader(wxWindow* parent, wxGrid& columnsOf, GridColumns gridColumns);

    /// Gives the last seen column what the columns before it leave of the grid's width, less 20 pixels for the scroll
    /// bar, and puts every title over its column. It does so by itself when the grid changes its size.
    void settle();

    /// Follows the grid when it is scrolled sideways; the grid sends no event for that.
    void OnInternalIdle() override;

private:
    struct Title
    {
        int column = 0;
        wxStaticText* text = nullptr;
    };

    wxStaticText* createTitle(std::string_view title);
    void stretchLastColumn();
    void placeTitles();

    /// Pixels from the left end of this row to that of the first column.
    int columnsLeft() const;

    wxGrid& grid;
    GridColumns columns;
    ColumnDrag drag;
    std::vector<Title> titles;
    int titleHeight = 0; ///< pixels; kept, because GTK is slow to answer and each change of the size asks
    int placedLeft = 0;  ///< what `columnsLeft` was when the titles were placed
};
