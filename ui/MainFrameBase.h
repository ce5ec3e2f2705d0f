#pragma once

#include "ui/grid/GridColumns.h"

#include <wx/frame.h>
#include <wx/timer.h>

class GridHeader;
class wxBoxSizer;
class wxFlexGridSizer;
class wxGrid;
class wxGridEvent;
class wxGridRangeSelectEvent;
class wxGridTableBase;
class wxPanel;
class wxScrolledWindow;
class wxSplitterWindow;
class wxStaticText;
class wxTextCtrl;
class wxTreeCtrl;
class wxTreeEvent;

/// The main window's layout: creates the controls, lays them out and connects their events to handlers.
/// It holds no behaviour; the handlers of this class pass their events on.
class MainFrameBase : public wxFrame
{
public:
    MainFrameBase();

protected:
    virtual void OnSourceTreeSelChanged(wxTreeEvent& event);
    virtual void OnSourceTreeLeftUp(wxMouseEvent& event);
    virtual void OnSourceFilterChanged(wxCommandEvent& event);
    virtual void OnSourceGridKeyDown(wxKeyEvent& event);
    virtual void OnSourceGridRightDown(wxMouseEvent& event);
    virtual void OnMapGridCellDClick(wxGridEvent& event);
    virtual void OnMapGridRangeSelected(wxGridRangeSelectEvent& event);
    virtual void OnMapGridSelectCell(wxGridEvent& event);
    virtual void OnMapGridKeyDown(wxKeyEvent& event);
    virtual void OnMapGridRightDown(wxMouseEvent& event);
    virtual void OnMapGridContextMenu(wxContextMenuEvent& event);
    virtual void OnTimer(wxTimerEvent& event);

    /// Lets a grid show the rows of a table, which it owns from then on; the column widths stay.
    static void showTable(wxGrid& grid, wxGridTableBase* table);

    /// Gives the last column of each grid the room that is left, and the titles the widths of their columns.
    void fitColumns();

    wxPanel* topBar = nullptr;
    wxBoxSizer* topBarSizer = nullptr;
    wxSplitterWindow* splitter = nullptr;

    wxPanel* sourcePanel = nullptr;
    wxPanel* databaseHeader = nullptr;
    wxBoxSizer* copyButtonSizer = nullptr; ///< place of the source-side copy button in the "DATABASE" title row
    wxTextCtrl* sourceFilter = nullptr;
    wxTreeCtrl* sourceTree = nullptr;
    wxGrid* sourceGrid = nullptr;
    wxScrolledWindow* groupFilters = nullptr;
    wxFlexGridSizer* groupFilterSizer = nullptr;

    wxPanel* mapPanel = nullptr;
    wxPanel* mapHeader = nullptr;
    wxBoxSizer* mapButtonSizer = nullptr;
    wxGrid* mapGrid = nullptr;
    wxStaticText* statusLabel = nullptr;
    wxStaticText* viewLabel = nullptr;

    wxTimer timer;

private:
    void createTopBar();
    void createSourcePanel();
    wxSizer* createTreeColumn();
    wxSizer* createTagColumn();
    void createGroupFilters(wxSizer& column);
    void createMapPanel();
    wxPanel* createStatusLine();
    wxPanel* createTitleRow(wxWindow* parent, const wxString& title, wxSizer*& sizer);
    wxGrid* createGrid(wxWindow* parent, GridColumns columns);
    void connectEvents();

    GridHeader* sourceGridHeader = nullptr;
    GridHeader* mapGridHeader = nullptr;
};
