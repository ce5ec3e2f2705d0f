// The controls of both sides of the main window. What is set here is set once for both grids; what differs between them
// is in the layout class of each side.

#include "ui/PanelControls.h"

#include "ui/QuietPanel.h"
#include "ui/Theme.h"
#include "ui/WrappingRowSizer.h"
#include "ui/grid/CellTooltips.h"
#include "ui/grid/ColumnWidths.h"
#include "ui/grid/RowCellRenderer.h"

#include <wx/grid.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <algorithm>
#include <vector>

namespace
{

/// Pixels of a grid row with texts of the usual size.
constexpr int usualRowHeight = 25;

/// Pixels above and below a line of text in its row, together.
constexpr int rowPadding = 6;

/// Pixels of a title row with its buttons.
constexpr int titleRowHeight = 42;

/// Pixels by which buttons get narrower on small screens: the 19 of the map then fit into half of 1366.
constexpr int buttonNarrowing = 6;

/// Pixels on both sides of a title.
constexpr int titleBorder = 8;

/// Lets Tab and Shift+Tab leave a grid from any cell. The toolkit's own behaviour of that name (3.2) first goes through
/// the cells of the row, which mean nothing where rows are selected whole.
void leaveWithTab(wxGrid& grid)
{
    grid.Bind(wxEVT_GRID_TABBING,
              [&grid](wxGridEvent& event) {
                  grid.Navigate(event.ShiftDown() ? wxNavigationKeyEvent::IsBackward : wxNavigationKeyEvent::IsForward);
              });
}

/// Gives a grid its fonts and colours.
void dressGrid(wxGrid& grid)
{
    grid.SetDefaultCellFont(theme::cell());
    grid.SetLabelFont(theme::cell());
    grid.SetDefaultCellTextColour(theme::colour(theme::cellText));
    grid.SetDefaultCellBackgroundColour(theme::colour(theme::contentBackground));
    grid.SetCellHighlightColour(theme::colour(theme::selection));
    grid.SetSelectionBackground(theme::colour(theme::selection));
    grid.SetSelectionForeground(theme::colour(theme::selectionText));
    panelControls::dress(grid, theme::cellText, theme::contentBackground);
}

} // namespace

namespace panelControls
{

int rowHeight(const wxWindow& window)
{
    const wxFont font = theme::cell();
    int width = 0;
    int line = 0;
    window.GetTextExtent("x", &width, &line, nullptr, nullptr, &font);
    // Texts may be larger than usual; a row is then as high as they need.
    return std::max(window.FromDIP(usualRowHeight), line + window.FromDIP(rowPadding));
}

void dress(wxWindow& window, Rgb text, Rgb background)
{
    window.SetForegroundColour(theme::colour(text));
    window.SetBackgroundColour(theme::colour(background));
}

wxStaticText* createText(wxWindow* parent, const wxString& text, const wxFont& font, Rgb colour, long style)
{
    auto* const label = new wxStaticText(parent, wxID_ANY, text, wxDefaultPosition, wxDefaultSize, style);
    label->SetFont(font);
    label->SetForegroundColour(theme::colour(colour));
    return label;
}

wxPanel* createTitleRow(wxWindow* parent, const wxString& title)
{
    auto* const row = new QuietPanel(parent);
    dress(*row, theme::frameText, theme::headerBackground);
    auto* const text = createText(row, title, theme::semibold(16), theme::title);
    text->SetBackgroundColour(theme::colour(theme::headerBackground));
    // Half of a small screen is too narrow for all buttons of the map.
    auto* const sizer = new WrappingRowSizer(row->FromDIP(buttonNarrowing));
    sizer->SetMinSize(row->FromDIP(wxSize(0, titleRowHeight)));
    sizer->Add(text, 0, wxALIGN_CENTRE_VERTICAL | wxLEFT | wxRIGHT, row->FromDIP(titleBorder));
    row->SetSizer(sizer);
    return row;
}

wxGrid* createGrid(wxWindow* parent, GridColumns columns)
{
    auto* const grid = new wxGrid(parent, wxID_ANY);
    grid->SetCanFocus(false); // with GTK the Tab key stops at the grid around its cells, too
    grid->CreateGrid(0, static_cast<int>(columns.size()), wxGrid::wxGridSelectRows);
    grid->EnableEditing(false);
    grid->EnableGridLines(false);
    grid->SetMargins(0, 0);
    // Texts above the grid stand in for the labels of columns; rows have none.
    grid->SetRowLabelSize(0);
    grid->SetColLabelSize(0);
    grid->SetDefaultRowSize(rowHeight(*grid));
    grid->SetScrollLineY(rowHeight(*grid)); // no row is ever cut at the top
    grid->DisableDragRowSize();
    grid->DisableDragGridSize(); // a click near the edge of a cell is meant for its row
    // A long name ends in its own column, also where the next cell is empty.
    grid->SetDefaultCellOverflow(false);
    grid->SetDefaultRenderer(new RowCellRenderer);
    grid->SetDefaultCellAlignment(wxALIGN_LEFT, wxALIGN_CENTRE);
    dressGrid(*grid);
    for (std::size_t column = 0; column < columns.size(); ++column)
        grid->SetColSize(static_cast<int>(column), columnWidths::opening(*grid, columns[column]));
    showCellTooltips(*grid);
    leaveWithTab(*grid);
    return grid;
}

void showTable(wxGrid& grid, wxGridTableBase* table)
{
    std::vector<int> widths;
    widths.reserve(static_cast<std::size_t>(grid.GetNumberCols()));
    for (int column = 0; column < grid.GetNumberCols(); ++column)
        widths.push_back(grid.GetColSize(column));
    // Toolkit 3.2 gives all columns their default width with a new table, and no call keeps them.
    grid.SetTable(table, true, wxGrid::wxGridSelectRows);
    for (std::size_t column = 0; column < widths.size(); ++column)
        grid.SetColSize(static_cast<int>(column), widths[column]);
}

} // namespace panelControls
