// The layout of the source side: the tree beside the list of tags, each below its title row, and the group filters
// across both. Like the layout of the main window it has no behaviour; its handlers pass their events on.

#include "ui/SourceBrowserBase.h"

#include "ui/Desktop.h"
#include "ui/PanelControls.h"
#include "ui/Theme.h"
#include "ui/grid/GridHeader.h"

#include <wx/grid.h>
#include <wx/scrolwin.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>
#include <wx/window.h>

namespace
{

/// A line across. That of the system takes no colour on Windows, where it is white.
class Line : public wxWindow
{
public:
    explicit Line(wxWindow* parent) : wxWindow(parent, wxID_ANY)
    {
        SetMinSize(wxSize(-1, FromDIP(1)));
        SetBackgroundColour(theme::colour(theme::entryBackground));
    }

    bool AcceptsFocus() const override { return false; }
};

/// Rows of a grid that are as high as the group filters before they scroll.
constexpr int groupFilterRows = 7;

/// Pixels that the filter field takes at least.
constexpr int filterWidth = 110;

/// Pixels that the tree takes at least; it scrolls.
constexpr int treeWidth = 200;

} // namespace

SourceBrowserBase::SourceBrowserBase(wxWindow* parent) : QuietPanel(parent)
{
    panelControls::dress(*this, theme::frameText, theme::frameBackground);
    auto* const columns = new wxBoxSizer(wxHORIZONTAL);
    // A row of the list has five texts, a node of the tree one.
    columns->Add(createTreeColumn(), 2, wxEXPAND);
    columns->Add(createTagColumn(), 5, wxEXPAND | wxLEFT, FromDIP(1));
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(columns, 1, wxEXPAND);
    createGroupFilters(*sizer);
    SetSizer(sizer);
    // Laid out at every step of the sash; painted at once it would flicker.
    SetDoubleBuffered(true);
    connectEvents();
}

wxSizer* SourceBrowserBase::createTreeColumn()
{
    wxPanel* const titleRow = panelControls::createTitleRow(this, "SOURCE");
    // The toolkit (3.2 with GTK) selects the root of a tree in which nothing is selected; hidden, it can be selected
    // without any node being highlighted.
    sourceTree = desktop::createTree(this, wxTR_DEFAULT_STYLE | wxTR_HIDE_ROOT | wxBORDER_NONE);
    sourceTree->SetFont(theme::semibold(12));
    sourceTree->SetMinSize(FromDIP(wxSize(treeWidth, -1)));
    panelControls::dress(*sourceTree, theme::contentText, theme::contentBackground);
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(titleRow, 0, wxEXPAND);
    column->Add(sourceTree, 1, wxEXPAND);
    return column;
}

wxSizer* SourceBrowserBase::createTagColumn()
{
    wxPanel* const titleRow = createDatabaseRow();
    sourceGrid = panelControls::createGrid(this, tagColumns);
    sourceGridHeader = new GridHeader(this, *sourceGrid, tagColumns);
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(titleRow, 0, wxEXPAND);
    column->Add(sourceGridHeader, 0, wxEXPAND);
    column->Add(sourceGrid, 1, wxEXPAND);
    return column;
}

wxPanel* SourceBrowserBase::createDatabaseRow()
{
    wxPanel* const row = panelControls::createTitleRow(this, "DATABASE");
    wxSizer& sizer = *row->GetSizer();
    // Empty until the main window brings its buttons: commands are its affair.
    buttonSizer = new wxBoxSizer(wxHORIZONTAL);
    sizer.Add(buttonSizer, 0, wxALIGN_CENTRE_VERTICAL);
    sizer.AddStretchSpacer();
    auto* const filter = new wxBoxSizer(wxHORIZONTAL);
    filter->Add(panelControls::createText(row, "Filter", theme::regular(11), theme::contentText), 0,
                wxALIGN_CENTRE_VERTICAL | wxLEFT | wxRIGHT, FromDIP(6));
    sourceFilter = new wxTextCtrl(row, wxID_ANY);
    sourceFilter->SetFont(theme::regular(10));
    panelControls::dress(*sourceFilter, theme::filterText, theme::contentBackground);
    sourceFilter->SetToolTip("Tagname and Description filter");
    desktop::setAccessibleName(*sourceFilter, "Filter");
    // Toolkit 3.2 has no usable best size for a field of GTK, see desktop::fieldHeight.
    sourceFilter->SetMinSize(wxSize(FromDIP(filterWidth), desktop::fieldHeight(*sourceFilter)));
    // It grows with the window; long tagnames are typed here.
    filter->Add(sourceFilter, 1, wxALIGN_CENTRE_VERTICAL | wxRIGHT, FromDIP(8));
    sizer.Add(filter, 1, wxALIGN_CENTRE_VERTICAL);
    return row;
}

void SourceBrowserBase::createGroupFilters(wxSizer& column)
{
    column.Add(new Line(this), 0, wxEXPAND | wxTOP, FromDIP(1));
    column.Add(panelControls::createText(this, "Group Filters", theme::semibold(14), theme::title), 0, wxLEFT | wxTOP,
               FromDIP(8));
    groupFilters = new QuietScrolledWindow(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxVSCROLL);
    // By rows, as the lists.
    groupFilters->SetScrollRate(0, panelControls::rowHeight(*this));
    groupFilters->SetMinSize(wxSize(-1, groupFilterRows * panelControls::rowHeight(*this)));
    panelControls::dress(*groupFilters, theme::groupDescription, theme::contentBackground);
    // In each row a box with the name of the group, and what the group is about.
    groupFilterSizer = new wxFlexGridSizer(2, 0, 0);
    groupFilters->SetSizer(groupFilterSizer);
    column.Add(groupFilters, 0, wxEXPAND | wxALL, FromDIP(4));
}

void SourceBrowserBase::connectEvents()
{
    sourceTree->Bind(wxEVT_TREE_SEL_CHANGED, &SourceBrowserBase::OnSourceTreeSelChanged, this);
    sourceTree->Bind(wxEVT_TREE_ITEM_COLLAPSING, &SourceBrowserBase::OnSourceTreeItemCollapsing, this);
    sourceTree->Bind(wxEVT_TREE_ITEM_EXPANDED, &SourceBrowserBase::OnSourceTreeItemExpanded, this);
    sourceFilter->Bind(wxEVT_TEXT, &SourceBrowserBase::OnSourceFilterChanged, this);
    sourceFilter->Bind(wxEVT_KEY_DOWN, &SourceBrowserBase::OnSourceFilterKeyDown, this);
    // The boxes are made when the groups are known. Their events come up to the area that holds them.
    groupFilters->Bind(wxEVT_CHECKBOX, &SourceBrowserBase::OnSourceFilterChanged, this);
    sourceGrid->Bind(wxEVT_KEY_DOWN, &SourceBrowserBase::OnSourceGridKeyDown, this);
    sourceGrid->GetGridWindow()->Bind(wxEVT_RIGHT_DOWN, &SourceBrowserBase::OnSourceGridRightDown, this);
    sourceGrid->Bind(wxEVT_CONTEXT_MENU, &SourceBrowserBase::OnSourceGridContextMenu, this);
}

void SourceBrowserBase::orderTabStops()
{
    // The Tab key goes through controls in the order of their making, and the buttons are made last.
    for (wxSizerItem* const item : buttonSizer->GetChildren())
        item->GetWindow()->MoveBeforeInTabOrder(sourceFilter);
}

void SourceBrowserBase::fitColumns()
{
    sourceGridHeader->settle();
}

// From here on: events that are passed on, for whoever derives.
void SourceBrowserBase::OnSourceTreeSelChanged(wxTreeEvent& event)
{
    event.Skip();
}

void SourceBrowserBase::OnSourceTreeItemCollapsing(wxTreeEvent& event)
{
    event.Skip();
}

void SourceBrowserBase::OnSourceTreeItemExpanded(wxTreeEvent& event)
{
    event.Skip();
}

void SourceBrowserBase::OnSourceFilterChanged(wxCommandEvent& event)
{
    event.Skip();
}

void SourceBrowserBase::OnSourceFilterKeyDown(wxKeyEvent& event)
{
    event.Skip();
}

void SourceBrowserBase::OnSourceGridKeyDown(wxKeyEvent& event)
{
    event.Skip();
}

void SourceBrowserBase::OnSourceGridRightDown(wxMouseEvent& event)
{
    event.Skip();
}

void SourceBrowserBase::OnSourceGridContextMenu(wxContextMenuEvent& event)
{
    event.Skip();
}
