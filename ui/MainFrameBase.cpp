#include "ui/MainFrameBase.h"

#include "ui/Theme.h"
#include "ui/grid/CellTooltips.h"
#include "ui/grid/ColumnWidths.h"
#include "ui/grid/GridHeader.h"
#include "ui/grid/RowCellRenderer.h"

#include <wx/grid.h>
#include <wx/scrolwin.h>
#include <wx/sizer.h>
#include <wx/splitter.h>
#include <wx/statline.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>

#include <vector>

namespace
{

/// Milliseconds between two counts of the error marks.
constexpr int statusInterval = 1000;

/// Pixels of a grid row.
constexpr int rowHeight = 25;

/// Pixels of a title row with its buttons.
constexpr int titleRowHeight = 42;

/// Pixels of the group filters before they scroll.
constexpr int groupFilterHeight = 172;

void dress(wxWindow& window, Rgb text, Rgb background)
{
    window.SetForegroundColour(theme::colour(text));
    window.SetBackgroundColour(theme::colour(background));
}

wxStaticText* createText(wxWindow* parent, const wxString& text, const wxFont& font, Rgb colour)
{
    auto* const label = new wxStaticText(parent, wxID_ANY, text);
    label->SetFont(font);
    label->SetForegroundColour(theme::colour(colour));
    return label;
}

} // namespace

MainFrameBase::MainFrameBase()
    : wxFrame(nullptr, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
              wxCAPTION | wxRESIZE_BORDER | wxMINIMIZE_BOX | wxMAXIMIZE_BOX | wxTAB_TRAVERSAL),
      timer(this)
{
    SetSize(FromDIP(wxSize(1719, 824)));
    dress(*this, theme::frameText, theme::frameBackground);

    createTopBar();
    splitter = new wxSplitterWindow(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxSP_3D | wxSP_LIVE_UPDATE);
    splitter->SetMinimumPaneSize(1);
    splitter->SetSashGravity(0.5);
    dress(*splitter, theme::frameText, theme::frameBackground);
    createSourcePanel();
    createMapPanel();
    splitter->SplitVertically(sourcePanel, mapPanel);
    splitter->SetDoubleBuffered(true);
    sourcePanel->SetDoubleBuffered(true);
    mapPanel->SetDoubleBuffered(true);

    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(topBar, 0, wxEXPAND);
    sizer->Add(splitter, 1, wxEXPAND);
    SetSizer(sizer);
    Layout();
    Centre(wxBOTH);

    connectEvents();
    timer.Start(statusInterval);
}

void MainFrameBase::createTopBar()
{
    topBar = new wxPanel(this);
    dress(*topBar, theme::frameText, theme::headerBackground);
    topBarSizer = new wxBoxSizer(wxHORIZONTAL);
    topBar->SetSizer(topBarSizer);
}

wxPanel* MainFrameBase::createTitleRow(wxWindow* parent, const wxString& title, wxSizer*& sizer)
{
    auto* const row = new wxPanel(parent);
    dress(*row, theme::frameText, theme::headerBackground);
    row->SetMinSize(FromDIP(wxSize(-1, titleRowHeight)));
    sizer = new wxBoxSizer(wxHORIZONTAL);
    auto* const text = createText(row, title, theme::semibold(16), theme::title);
    text->SetBackgroundColour(theme::colour(theme::headerBackground));
    sizer->Add(text, 0, wxALIGN_CENTRE_VERTICAL | wxLEFT | wxRIGHT, FromDIP(8));
    row->SetSizer(sizer);
    return row;
}

wxGrid* MainFrameBase::createGrid(wxWindow* parent, GridColumns columns)
{
    auto* const grid = new wxGrid(parent, wxID_ANY);
    grid->CreateGrid(0, static_cast<int>(columns.size()), wxGrid::wxGridSelectRows);
    grid->EnableEditing(false);
    grid->EnableGridLines(false);
    grid->SetMargins(0, 0);
    grid->SetRowLabelSize(0);
    grid->SetColLabelSize(0);
    grid->SetDefaultRowSize(FromDIP(rowHeight));
    grid->SetScrollLineY(FromDIP(rowHeight)); // no row is ever cut at the top
    grid->DisableDragRowSize();
    grid->DisableDragGridSize(); // a click near the edge of a cell is meant for its row
    grid->SetDefaultCellOverflow(false);
    grid->SetDefaultRenderer(new RowCellRenderer);
    grid->SetDefaultCellAlignment(wxALIGN_LEFT, wxALIGN_CENTRE);
    grid->SetDefaultCellFont(theme::regular(10));
    grid->SetLabelFont(theme::regular(10));
    grid->SetDefaultCellTextColour(theme::colour(theme::cellText));
    grid->SetDefaultCellBackgroundColour(theme::colour(theme::contentBackground));
    grid->SetCellHighlightColour(theme::colour(theme::selection));
    grid->SetSelectionBackground(theme::colour(theme::selection));
    grid->SetSelectionForeground(theme::colour(theme::contentText));
    dress(*grid, theme::cellText, theme::contentBackground);
    for (std::size_t column = 0; column < columns.size(); ++column)
        grid->SetColSize(static_cast<int>(column), columnWidths::opening(*grid, columns[column]));
    showCellTooltips(*grid);
    return grid;
}

void MainFrameBase::createSourcePanel()
{
    sourcePanel = new wxPanel(splitter);
    dress(*sourcePanel, theme::frameText, theme::frameBackground);
    auto* const columns = new wxBoxSizer(wxHORIZONTAL);
    columns->Add(createTreeColumn(), 1, wxEXPAND);
    columns->Add(createTagColumn(), 3, wxEXPAND | wxLEFT, FromDIP(1));
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(columns, 1, wxEXPAND);
    createGroupFilters(*sizer);
    sourcePanel->SetSizer(sizer);
}

wxSizer* MainFrameBase::createTreeColumn()
{
    wxSizer* titleSizer = nullptr;
    wxPanel* const titleRow = createTitleRow(sourcePanel, "SOURCE", titleSizer);
    sourceTree =
        new wxTreeCtrl(sourcePanel, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTR_DEFAULT_STYLE | wxBORDER_NONE);
    sourceTree->SetFont(theme::semibold(12));
    dress(*sourceTree, theme::contentText, theme::contentBackground);
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(titleRow, 0, wxEXPAND);
    column->Add(sourceTree, 1, wxEXPAND);
    return column;
}

wxSizer* MainFrameBase::createTagColumn()
{
    wxSizer* titleSizer = nullptr;
    databaseHeader = createTitleRow(sourcePanel, "DATABASE", titleSizer);
    copyButtonSizer = new wxBoxSizer(wxHORIZONTAL);
    titleSizer->Add(copyButtonSizer, 0, wxALIGN_CENTRE_VERTICAL);
    titleSizer->AddStretchSpacer();
    titleSizer->Add(createText(databaseHeader, "Filter", theme::regular(11), theme::contentText), 0,
                    wxALIGN_CENTRE_VERTICAL | wxRIGHT, FromDIP(6));
    sourceFilter = new wxTextCtrl(databaseHeader, wxID_ANY);
    sourceFilter->SetFont(theme::regular(10));
    dress(*sourceFilter, theme::filterText, theme::contentBackground);
    sourceFilter->SetToolTip("Tagname and Description filter");
    sourceFilter->SetMinSize(FromDIP(wxSize(220, -1)));
    titleSizer->Add(sourceFilter, 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, FromDIP(8));

    sourceGrid = createGrid(sourcePanel, tagColumns);
    sourceGridHeader = new GridHeader(sourcePanel, *sourceGrid, tagColumns);
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(databaseHeader, 0, wxEXPAND);
    column->Add(sourceGridHeader, 0, wxEXPAND);
    column->Add(sourceGrid, 1, wxEXPAND);
    return column;
}

void MainFrameBase::createGroupFilters(wxSizer& column)
{
    column.Add(new wxStaticLine(sourcePanel), 0, wxEXPAND | wxTOP, FromDIP(1));
    column.Add(createText(sourcePanel, "Group Filters", theme::semibold(14), theme::title), 0, wxLEFT | wxTOP,
               FromDIP(8));
    groupFilters = new wxScrolledWindow(sourcePanel, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxVSCROLL);
    groupFilters->SetScrollRate(0, FromDIP(rowHeight));
    groupFilters->SetMinSize(FromDIP(wxSize(-1, groupFilterHeight)));
    dress(*groupFilters, theme::groupDescription, theme::contentBackground);
    groupFilterSizer = new wxFlexGridSizer(2, 0, 0);
    groupFilters->SetSizer(groupFilterSizer);
    column.Add(groupFilters, 0, wxEXPAND | wxALL, FromDIP(4));
}

void MainFrameBase::createMapPanel()
{
    mapPanel = new wxPanel(splitter);
    dress(*mapPanel, theme::frameText, theme::frameBackground);
    wxSizer* titleSizer = nullptr;
    mapHeader = createTitleRow(mapPanel, "MODBUS", titleSizer);
    mapButtonSizer = new wxBoxSizer(wxHORIZONTAL);
    titleSizer->Add(mapButtonSizer, 1, wxALIGN_CENTRE_VERTICAL);

    mapGrid = createGrid(mapPanel, mapColumns);
    mapGrid->DisableDragColMove();
    mapGrid->DisableDragColSize();
    mapGridHeader = new GridHeader(mapPanel, *mapGrid, mapColumns);
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(mapHeader, 0, wxEXPAND);
    sizer->Add(mapGridHeader, 0, wxEXPAND);
    sizer->Add(mapGrid, 1, wxEXPAND);
    sizer->Add(createStatusLine(), 0, wxEXPAND);
    mapPanel->SetSizer(sizer);
}

wxPanel* MainFrameBase::createStatusLine()
{
    auto* const line = new wxPanel(mapPanel);
    dress(*line, theme::statusStart, theme::headerBackground);
    statusLabel = createText(line, "No Errors", theme::regular(9), theme::statusStart);
    viewLabel = createText(line, "COMPRESSED", theme::semibold(12), theme::title);
    viewLabel->SetBackgroundColour(theme::colour(theme::headerBackground));
    auto* const sizer = new wxBoxSizer(wxHORIZONTAL);
    sizer->Add(statusLabel, 1, wxALIGN_CENTRE_VERTICAL | wxALL, FromDIP(5));
    sizer->Add(viewLabel, 0, wxALIGN_CENTRE_VERTICAL | wxLEFT | wxRIGHT, FromDIP(8));
    line->SetSizer(sizer);
    return line;
}

void MainFrameBase::connectEvents()
{
    sourceTree->Bind(wxEVT_TREE_SEL_CHANGED, &MainFrameBase::OnSourceTreeSelChanged, this);
    sourceTree->Bind(wxEVT_LEFT_UP, &MainFrameBase::OnSourceTreeLeftUp, this);
    sourceFilter->Bind(wxEVT_TEXT, &MainFrameBase::OnSourceFilterChanged, this);
    groupFilters->Bind(wxEVT_CHECKBOX, &MainFrameBase::OnSourceFilterChanged, this);
    sourceGrid->Bind(wxEVT_KEY_DOWN, &MainFrameBase::OnSourceGridKeyDown, this);
    sourceGrid->GetGridWindow()->Bind(wxEVT_RIGHT_DOWN, &MainFrameBase::OnSourceGridRightDown, this);
    mapGrid->Bind(wxEVT_GRID_CELL_LEFT_DCLICK, &MainFrameBase::OnMapGridCellDClick, this);
    mapGrid->Bind(wxEVT_GRID_RANGE_SELECTED, &MainFrameBase::OnMapGridRangeSelected, this);
    mapGrid->Bind(wxEVT_GRID_SELECT_CELL, &MainFrameBase::OnMapGridSelectCell, this);
    mapGrid->Bind(wxEVT_KEY_DOWN, &MainFrameBase::OnMapGridKeyDown, this);
    mapGrid->GetGridWindow()->Bind(wxEVT_RIGHT_DOWN, &MainFrameBase::OnMapGridRightDown, this);
    mapGrid->Bind(wxEVT_CONTEXT_MENU, &MainFrameBase::OnMapGridContextMenu, this);
    Bind(wxEVT_TIMER, &MainFrameBase::OnTimer, this, timer.GetId());
}

void MainFrameBase::showTable(wxGrid& grid, wxGridTableBase* table)
{
    std::vector<int> widths;
    widths.reserve(static_cast<std::size_t>(grid.GetNumberCols()));
    for (int column = 0; column < grid.GetNumberCols(); ++column)
        widths.push_back(grid.GetColSize(column));
    grid.SetTable(table, true, wxGrid::wxGridSelectRows);
    for (std::size_t column = 0; column < widths.size(); ++column)
        grid.SetColSize(static_cast<int>(column), widths[column]);
}

void MainFrameBase::fitColumns()
{
    sourceGridHeader->settle();
    mapGridHeader->settle();
}

void MainFrameBase::OnSourceTreeSelChanged(wxTreeEvent& event)
{
    event.Skip();
}

void MainFrameBase::OnSourceTreeLeftUp(wxMouseEvent& event)
{
    event.Skip();
}

void MainFrameBase::OnSourceFilterChanged(wxCommandEvent& event)
{
    event.Skip();
}

void MainFrameBase::OnSourceGridKeyDown(wxKeyEvent& event)
{
    event.Skip();
}

void MainFrameBase::OnSourceGridRightDown(wxMouseEvent& event)
{
    event.Skip();
}

void MainFrameBase::OnMapGridCellDClick(wxGridEvent& event)
{
    event.Skip();
}

void MainFrameBase::OnMapGridRangeSelected(wxGridRangeSelectEvent& event)
{
    event.Skip();
}

void MainFrameBase::OnMapGridSelectCell(wxGridEvent& event)
{
    event.Skip();
}

void MainFrameBase::OnMapGridKeyDown(wxKeyEvent& event)
{
    event.Skip();
}

void MainFrameBase::OnMapGridRightDown(wxMouseEvent& event)
{
    event.Skip();
}

void MainFrameBase::OnMapGridContextMenu(wxContextMenuEvent& event)
{
    event.Skip();
}

void MainFrameBase::OnTimer(wxTimerEvent& event)
{
    event.Skip();
}
