#include "ui/grid/EmptyGridHint.h"

#include "ui/Theme.h"

#include <wx/control.h>
#include <wx/dcclient.h>
#include <wx/grid.h>

namespace
{

/// Pixels on both sides of the line.
constexpr int margin = 8;

void paintHint(const wxGrid& grid, const wxString& text)
{
    wxWindow* const window = grid.GetGridWindow();
    wxPaintDC dc(window);
    dc.SetBackground(grid.GetDefaultCellBackgroundColour());
    dc.Clear();
    dc.SetFont(grid.GetDefaultCellFont());
    dc.SetTextForeground(theme::colour(theme::hint));
    const int room = window->GetClientSize().GetWidth() - 2 * window->FromDIP(margin);
    const wxString line = wxControl::Ellipsize(text, dc, wxELLIPSIZE_END, room);
    const int left = window->FromDIP(margin) + (room - dc.GetTextExtent(line).GetWidth()) / 2;
    dc.DrawText(line, left, grid.GetDefaultRowSize());
}

} // namespace

void showWhileEmpty(wxGrid& grid, std::function<wxString()> text)
{
    // The grid's own painting only fills the ground when there is no row; this takes its place then.
    grid.GetGridWindow()->Bind(wxEVT_PAINT,
                               [&grid, says = std::move(text)](wxPaintEvent& event)
                               {
                                   if (grid.GetNumberRows() == 0)
                                       paintHint(grid, says());
                                   else
                                       event.Skip();
                               });
    grid.GetGridWindow()->Bind(wxEVT_SIZE,
                               [&grid](wxSizeEvent& event)
                               {
                                   event.Skip();
                                   if (grid.GetNumberRows() == 0)
                                       grid.GetGridWindow()->Refresh();
                               });
}
