// An empty grid does not say why it is empty. A line painted in its place does. It is no control, so nothing can click
// it and the Tab key does not stop at it.

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
    // Windows repeats a paint event that is not answered with this kind of context.
    wxPaintDC dc(window);
    dc.SetBackground(grid.GetDefaultCellBackgroundColour());
    dc.Clear();
    dc.SetFont(grid.GetDefaultCellFont());
    dc.SetTextForeground(theme::colour(theme::hint));
    const int room = window->GetClientSize().GetWidth() - 2 * window->FromDIP(margin);
    const wxString line = wxControl::Ellipsize(text, dc, wxELLIPSIZE_END, room);
    const int left = window->FromDIP(margin) + (room - dc.GetTextExtent(line).GetWidth()) / 2;
    // One row down, where the eye looks for the first rows.
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
    // The line is centred, so it moves with every change of the size.
    grid.GetGridWindow()->Bind(wxEVT_SIZE,
                               [&grid](wxSizeEvent& event)
                               {
                                   event.Skip();
                                   if (grid.GetNumberRows() == 0)
                                       grid.GetGridWindow()->Refresh();
                               });
}
