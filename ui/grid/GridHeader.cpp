#include "ui/grid/GridHeader.h"

#include "ui/Theme.h"

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

GridHeader::GridHeader(wxWindow* parent, wxGrid& columnsOf, int firstColumn, const std::vector<wxString>& titles)
    : wxPanel(parent), grid(columnsOf), firstTitledColumn(firstColumn)
{
    SetBackgroundColour(theme::colour(theme::columnHeaderBackground));
    auto* const sizer = new wxBoxSizer(wxHORIZONTAL);
    int untitledWidth = 0;
    for (int column = 0; column < firstColumn; ++column)
        untitledWidth += grid.GetColSize(column);
    sizer->AddSpacer(untitledWidth);
    for (const wxString& title : titles)
    {
        auto* const text = new wxStaticText(this, wxID_ANY, title, wxDefaultPosition, wxDefaultSize,
                                            wxALIGN_CENTRE_HORIZONTAL | wxST_NO_AUTORESIZE);
        text->SetFont(theme::regular(8));
        text->SetForegroundColour(theme::colour(theme::columnHeaderText));
        text->SetBackgroundColour(theme::colour(theme::columnHeaderBackground));
        texts.push_back(text);
        const bool last = texts.size() == titles.size();
        sizer->Add(text, last ? 1 : 0, wxTOP | wxBOTTOM | (last ? 0 : wxRIGHT), FromDIP(titleGap));
    }
    SetSizer(sizer);
    followColumns();
}

void GridHeader::followColumns()
{
    for (std::size_t i = 0; i < texts.size(); ++i)
    {
        const int width = grid.GetColSize(firstTitledColumn + static_cast<int>(i)) - FromDIP(titleGap);
        texts[i]->SetMinSize(wxSize(std::max(width, 0), -1));
    }
    texts.back()->SetMinSize(wxSize(0, -1));
    Layout();
}

void stretchColumn(wxGrid& grid, int column)
{
    int width = grid.GetSize().GetWidth() - grid.FromDIP(scrollBarRoom);
    for (int before = 0; before < column; ++before)
        width -= grid.GetColSize(before);
    grid.SetColSize(column, std::max(width, grid.FromDIP(narrowestColumn)));
}
