// The arrows by which a tree is folded and unfolded. GTK 3.24 paints them with pictures of the desktop's icon theme:
// the first one has it read the theme, 5 ms of a start, and a desktop that has no dark theme gives pictures for a light
// one.

#include "ui/ExpandersGtk.h"

#include "ui/Theme.h"

#include <wx/dc.h>
#include <wx/renderer.h>
#include <wx/window.h>

#include <array>

namespace
{

/// Pixels from the middle of an arrow to the ends of its long side, and to its point.
constexpr int halfSide = 5;
constexpr int halfHeight = 3;

class ExpanderRenderer : public wxDelegateRendererNative
{
public:
    // Asked for, toolkit 3.2 makes the usual one; later that would take the place of this one.
    ExpanderRenderer() : wxDelegateRendererNative(wxRendererNative::Get()) {}

    void DrawTreeItemButton(wxWindow* window, wxDC& dc, const wxRect& rect, int flags) override
    {
        const int reach = window->FromDIP(halfSide);
        const int half = window->FromDIP(halfHeight);
        const std::array<wxPoint, 3> down{{{-reach, -half}, {reach, -half}, {0, half}}};
        const std::array<wxPoint, 3> right{{{-half, -reach}, {half, 0}, {-half, reach}}};
        dc.SetPen(*wxTRANSPARENT_PEN);
        // Under the mouse it is as bright as the texts.
        const Rgb colour = (flags & wxCONTROL_CURRENT) != 0 ? theme::contentText : theme::frameText;
        dc.SetBrush(wxBrush(theme::colour(colour)));
        dc.DrawPolygon(3, (flags & wxCONTROL_EXPANDED) != 0 ? down.data() : right.data(), rect.x + rect.width / 2,
                       rect.y + rect.height / 2);
    }
};

} // namespace

void drawExpandersPlainly()
{
    // The toolkit keeps it, and deletes it when it ends.
    wxRendererNative::Set(new ExpanderRenderer);
} // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks)
