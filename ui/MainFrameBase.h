#pragma once

#include <wx/containr.h>
#include <wx/frame.h>
#include <wx/timer.h>

class GridHeader;
class wxBoxSizer;
class wxGrid;
class wxGridEvent;
class wxGridRangeSelectEvent;
class wxPanel;
class wxSizer;
class wxSplitterWindow;
class wxStaticText;

/// The main window's layout: creates the controls, lays them out and connects their events to handlers. The source side
/// is a panel of its own. It holds no behaviour; the handlers of this class pass their events on.
///
/// With a plain frame of toolkit 3.2 the Tab key does not get from one panel to the next on Windows.
class MainFrameBase : public wxNavigationEnabled<wxFrame>
{
public:
    MainFrameBase();

protected:
    virtual void OnMapGridCellDClick(wxGridEvent& event);
    virtual void OnMapGridRangeSelected(wxGridRangeSelectEvent& event);
    virtual void OnMapGridSelectCell(wxGridEvent& event);
    virtual void OnMapGridKeyDown(wxKeyEvent& event);
    virtual void OnMapGridRightDown(wxMouseEvent& event);
    virtual void OnMapGridContextMenu(wxContextMenuEvent& event);
    virtual void OnTimer(wxTimerEvent& event);

    /// Counts the error marks from here on, once a second.
    void startTimer();

    /// Puts the source side into the left half of the window.
    /// @param panel  child of `splitter`
    void showSourcePanel(wxWindow* panel);

    /// Gives the last column of the map grid the room that is left, and the titles the widths of their columns.
    void fitColumns();

    wxPanel* topBar = nullptr;
    wxBoxSizer* topBarSizer = nullptr;
    wxSplitterWindow* splitter = nullptr;

    wxPanel* mapPanel = nullptr;
    wxSizer* mapButtonSizer = nullptr;
    wxGrid* mapGrid = nullptr;
    wxStaticText* statusLabel = nullptr;
    wxStaticText* viewLabel = nullptr;

    wxTimer timer;

private:
    void createTopBar();
    void createMapPanel();
    wxPanel* createStatusLine();
    void connectEvents();
    void OnSize(wxSizeEvent& event);

    GridHeader* mapGridHeader = nullptr;
};
