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

MainFrameBase::MainFrameBase()
    : wxFrame(nullptr, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
              wxCAPTION | wxRESIZE_BORDER | wxMINIMIZE_BOX | wxMAXIMIZE_BOX | wxTAB_TRAVERSAL),
      timer(this)
{
    SetMinSize(FromDIP(wxSize(leastWidth, leastHeight)));
    SetSize(FromDIP(wxSize(1719, 824)));
    panelControls::dress(*this, theme::frameText, theme::frameBackground);

    createTopBar();
    splitter = new wxSplitterWindow(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxSP_3D | wxSP_LIVE_UPDATE);
    splitter->SetMinimumPaneSize(1);
    splitter->SetSashGravity(0.5);
    panelControls::dress(*splitter, theme::frameText, theme::frameBackground);
    splitter->SetDoubleBuffered(true);
    createMapPanel();
    splitter->Initialize(mapPanel);

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
    topBar = new QuietPanel(this);
    panelControls::dress(*topBar, theme::frameText, theme::headerBackground);
    topBarSizer = new wxBoxSizer(wxHORIZONTAL);
    topBar->SetSizer(topBarSizer);
}

void MainFrameBase::showSourcePanel(wxWindow* panel)
{
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
    statusLabel = panelControls::createText(line, "No Errors", theme::regular(9), theme::statusStart,
                                            wxST_ELLIPSIZE_END | wxST_NO_AUTORESIZE);
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
    mapGrid->Bind(wxEVT_KEY_DOWN, &MainFrameBase::OnMapGridKeyDown, this);
    mapGrid->GetGridWindow()->Bind(wxEVT_RIGHT_DOWN, &MainFrameBase::OnMapGridRightDown, this);
    mapGrid->Bind(wxEVT_CONTEXT_MENU, &MainFrameBase::OnMapGridContextMenu, this);
    Bind(wxEVT_TIMER, &MainFrameBase::OnTimer, this, timer.GetId());
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
