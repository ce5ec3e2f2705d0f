// The layout of the main window: a bar of buttons across the top, below it a splitter with the source side on the left
// and the map on the right. There is no menu bar, tool bar or status bar; the height belongs to the lists.
//
// The handlers here only pass their events on. What happens is said in the derived class, for those that it overrides;
// a change of the selection (range selected, cell selected) is left to the grid, since commands look at it only when
// they run.

#include "ui/MainFrameBase.h"

#include "ui/PanelControls.h"
#include "ui/QuietPanel.h"
#include "ui/Theme.h"
#include "ui/grid/GridHeader.h"

#include <wx/grid.h>
#include <wx/sizer.h>
#include <wx/splitter.h>
#include <wx/stattext.h>

namespace
{

/// Milliseconds between two counts of the error marks.
constexpr int statusInterval = 1000;

/// Pixels below which the window does not get: all of its parts can still be used.
constexpr int leastWidth = 800;
constexpr int leastHeight = 480;

} // namespace

MainFrameBase::MainFrameBase() : timer(this)
{
    // No system menu and no close box: the window is left with its exit button, which asks about saving.
    Create(nullptr, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
           wxCAPTION | wxRESIZE_BORDER | wxMINIMIZE_BOX | wxMAXIMIZE_BOX | wxTAB_TRAVERSAL);
    // The keyboard is for its controls, as with the panels.
    m_container.DisableSelfFocus();
    SetMinSize(FromDIP(wxSize(leastWidth, leastHeight)));
    // The size after the window is no longer maximised.
    SetSize(FromDIP(wxSize(1719, 824)));
    panelControls::dress(*this, theme::frameText, theme::frameBackground);

    createTopBar();
    splitter = new wxSplitterWindow(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxSP_3D | wxSP_LIVE_UPDATE);
    // With 0 toolkit 3.2 takes one side away when the sash is pulled to the edge or double-clicked.
    splitter->SetMinimumPaneSize(1);
    splitter->SetSashGravity(0.5);
    panelControls::dress(*splitter, theme::frameText, theme::frameBackground);
    // Both sides are laid out at every step of the sash; painted at once they would flicker.
    splitter->SetDoubleBuffered(true);
    createMapPanel();
    // The source side needs the database, so the derived class brings it.
    splitter->Initialize(mapPanel);

    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(topBar, 0, wxEXPAND);
    sizer->Add(splitter, 1, wxEXPAND);
    SetSizer(sizer);
    Layout();
    Centre(wxBOTH);

    connectEvents();
}

void MainFrameBase::startTimer()
{
    timer.Start(statusInterval);
}

void MainFrameBase::createTopBar()
{
    topBar = new QuietPanel(this);
    panelControls::dress(*topBar, theme::frameText, theme::headerBackground);
    topBarSizer = new wxBoxSizer(wxHORIZONTAL);
    topBar->SetSizer(topBarSizer);
}

void MainFrameBase::showSourcePanel(wxWindow* panel)
{
    // It is made after the map and stands before it; the Tab key goes from left to right.
    panel->MoveBeforeInTabOrder(mapPanel);
    splitter->SplitVertically(panel, mapPanel);
}

void MainFrameBase::createMapPanel()
{
    mapPanel = new QuietPanel(splitter);
    panelControls::dress(*mapPanel, theme::frameText, theme::frameBackground);
    mapPanel->SetDoubleBuffered(true);
    wxPanel* const titleRow = panelControls::createTitleRow(mapPanel, "MODBUS");
    mapButtonSizer = titleRow->GetSizer();

    mapGrid = panelControls::createGrid(mapPanel, mapColumns);
    // The columns are fixed: only the last one follows the width of the window.
    mapGrid->DisableDragColMove();
    mapGrid->DisableDragColSize();
    mapGridHeader = new GridHeader(mapPanel, *mapGrid, mapColumns);
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(titleRow, 0, wxEXPAND);
    sizer->Add(mapGridHeader, 0, wxEXPAND);
    sizer->Add(mapGrid, 1, wxEXPAND);
    sizer->Add(createStatusLine(), 0, wxEXPAND);
    mapPanel->SetSizer(sizer);
}

wxPanel* MainFrameBase::createStatusLine()
{
    auto* const line = new QuietPanel(mapPanel);
    panelControls::dress(*line, theme::statusStart, theme::headerBackground);
    // The text before the first count, a second after the start. The counted one is worded otherwise, with two blanks
    // before it: "  No errors".
    statusLabel = panelControls::createText(line, "No Errors", theme::regular(9), theme::statusStart,
                                            wxST_ELLIPSIZE_END | wxST_NO_AUTORESIZE);
    // It may be cut, and must not keep the map from getting narrow.
    statusLabel->SetMinSize(wxSize(0, -1));
    viewLabel = panelControls::createText(line, "COMPRESSED", theme::semibold(12), theme::title);
    viewLabel->SetBackgroundColour(theme::colour(theme::headerBackground));
    auto* const sizer = new wxBoxSizer(wxHORIZONTAL);
    sizer->Add(statusLabel, 1, wxALIGN_CENTRE_VERTICAL | wxALL, FromDIP(5));
    sizer->Add(viewLabel, 0, wxALIGN_CENTRE_VERTICAL | wxLEFT | wxRIGHT, FromDIP(8));
    line->SetSizer(sizer);
    return line;
}

void MainFrameBase::connectEvents()
{
    mapGrid->Bind(wxEVT_GRID_CELL_LEFT_DCLICK, &MainFrameBase::OnMapGridCellDClick, this);
    mapGrid->Bind(wxEVT_GRID_RANGE_SELECTED, &MainFrameBase::OnMapGridRangeSelected, this);
    mapGrid->Bind(wxEVT_GRID_SELECT_CELL, &MainFrameBase::OnMapGridSelectCell, this);
    // Handlers that are bound run before the grid's own, which has other meanings for some of the keys.
    mapGrid->Bind(wxEVT_KEY_DOWN, &MainFrameBase::OnMapGridKeyDown, this);
    // On the window of the cells: the grid's own event for the right button comes over cells only, and the menu opens
    // below the last row too.
    mapGrid->GetGridWindow()->Bind(wxEVT_RIGHT_DOWN, &MainFrameBase::OnMapGridRightDown, this);
    mapGrid->Bind(wxEVT_CONTEXT_MENU, &MainFrameBase::OnMapGridContextMenu, this);
    Bind(wxEVT_TIMER, &MainFrameBase::OnTimer, this, timer.GetId());
    Bind(wxEVT_SIZE, &MainFrameBase::OnSize, this);
}

void MainFrameBase::OnSize(wxSizeEvent& event)
{
    // Toolkit 3.2 with GTK gives a window that is maximised before it is shown the size of its frame alone, twice. All
    // controls would be laid out for no room, and again a moment later.
    if (GetClientSize().GetWidth() > 1)
        event.Skip();
}

void MainFrameBase::fitColumns()
{
    mapGridHeader->settle();
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
