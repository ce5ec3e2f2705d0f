#include "ui/grid/GridHeader.h"

#include "ui/Theme.h"
#include "ui/ToolkitText.h"

#include <wx/grid.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <algorithm>

namespace
{

/// Pixels between two titles.
constexpr int titleGap = 5;

/// Pixels left free beside the last column, the width of a scroll bar.
constexpr int scrollBarRoom = 20;

/// Pixels below which a stretched column is of no use.
constexpr int narrowestColumn = 30;

} // namespace

GridHeader::GridHeader(wxWindow* parent, wxGrid& columnsOf, GridColumns gridColumns)
    : wxPanel(parent), grid(columnsOf), columns(gridColumns)
{
    SetBackgroundColour(theme::colour(theme::columnHeaderBackground));
    auto* const sizer = new wxBoxSizer(wxHORIZONTAL);
    const int last = lastSeenColumn(columns);
    for (int column = 0; column <= last; ++column)
    {
        const GridColumn& titled = columns[static_cast<std::size_t>(column)];
        if (titled.title.empty())
        {
            sizer->AddSpacer(grid.GetColSize(column));
            continue;
        }
        titles.push_back({column, createTitle(titled.title)});
        sizer->Add(titles.back().text, column == last ? 1 : 0, wxTOP | wxBOTTOM | (column == last ? 0 : wxRIGHT),
                   FromDIP(titleGap));
    }
    SetSizer(sizer);
    followColumns();
}

wxStaticText* GridHeader::createTitle(std::string_view title)
{
    auto* const text = new wxStaticText(this, wxID_ANY, toolkitText(title), wxDefaultPosition, wxDefaultSize,
                                        wxALIGN_CENTRE_HORIZONTAL | wxST_NO_AUTORESIZE);
    text->SetFont(theme::regular(8));
    text->SetForegroundColour(theme::colour(theme::columnHeaderText));
    text->SetBackgroundColour(theme::colour(theme::columnHeaderBackground));
    return text;
}

void GridHeader::followColumns()
{
    for (const Title& title : titles)
        title.text->SetMinSize(wxSize(std::max(grid.GetColSize(title.column) - FromDIP(titleGap), 0), -1));
    titles.back().text->SetMinSize(wxSize(0, -1));
    Layout();
}

void GridHeader::stretchLastColumn()
{
    const int last = lastSeenColumn(columns);
    int width = grid.GetSize().GetWidth() - FromDIP(scrollBarRoom);
    for (int column = 0; column < last; ++column)
        width -= grid.GetColSize(column);
    grid.SetColSize(last, std::max(width, FromDIP(narrowestColumn)));
}
