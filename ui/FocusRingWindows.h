#pragma once

#include <wx/msw/wrapwin.h>
#include <wx/window.h>

/// Draws a ring inside the edge of a button that has the keyboard, unless the system hides where the keyboard is.
/// @param drawn  what the system has asked the button to draw
void drawFocusRing(const wxWindow& button, const DRAWITEMSTRUCT& drawn);

/// A button without a border that shows when it has the keyboard; with the toolkit (3.2) only buttons with a border do.
template <class Button>
class Ringed : public Button
{
public:
    using Button::Button;

    bool MSWOnDraw(WXDRAWITEMSTRUCT* item) override
    {
        const bool isDrawn = Button::MSWOnDraw(item);
        drawFocusRing(*this, *reinterpret_cast<const DRAWITEMSTRUCT*>(item));
        return isDrawn;
    }
};
