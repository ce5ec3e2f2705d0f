#pragma once

#include "ui/QuietPanel.h"

class GridHeader;
class wxBoxSizer;
class wxFlexGridSizer;
class wxGrid;
class wxScrolledWindow;
class wxTextCtrl;
class wxTreeCtrl;
class wxTreeEvent;

/// The layout of the main window's source side: creates the controls, lays them out and connects their events to
/// handlers. It holds no behaviour; the handlers of this class pass their events on.
class SourceBrowserBase : public QuietPanel
{
public:
    explicit SourceBrowserBase(wxWindow* parent);

    /// Gives the last column of the grid the room that is left, and the titles the widths of their columns.
    void fitColumns();

    /// Lets the Tab key reach the buttons of the title row where they stand, before the filter; to be called once they
    /// are there.
    void orderTabStops();

    /// The place for buttons in the "DATABASE" title row.
    wxBoxSizer& buttonPlace() { return *buttonSizer; }

protected:
    virtual void OnSourceTreeSelChanged(wxTreeEvent& event);
    virtual void OnSourceTreeItemCollapsing(wxTreeEvent& event);
    virtual void OnSourceTreeItemExpanded(wxTreeEvent& event);
    virtual void OnSourceFilterChanged(wxCommandEvent& event);
    virtual void OnSourceFilterKeyDown(wxKeyEvent& event);
    virtual void OnSourceGridKeyDown(wxKeyEvent& event);
    virtual void OnSourceGridRightDown(wxMouseEvent& event);
    virtual void OnSourceGridContextMenu(wxContextMenuEvent& event);

    wxTextCtrl* sourceFilter = nullptr;
    wxTreeCtrl* sourceTree = nullptr;
    wxGrid* sourceGrid = nullptr;
    wxScrolledWindow* groupFilters = nullptr;
    wxFlexGridSizer* groupFilterSizer = nullptr;

private:
    wxSizer* createTreeColumn();
    wxSizer* createTagColumn();
    wxPanel* createDatabaseRow();
    void createGroupFilters(wxSizer& column);
    void connectEvents();

    wxBoxSizer* buttonSizer = nullptr;
    GridHeader* sourceGridHeader = nullptr;
};
