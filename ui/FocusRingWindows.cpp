#include "ui/FocusRingWindows.h"

namespace
{

/// Pixels, as with GTK.
constexpr int ringWidth = 2;

/// The luminance from which black is told better from a ground than white, as the toolkit counts it.
constexpr double light = 0.5;

} // namespace

void drawFocusRing(const wxWindow& button, const DRAWITEMSTRUCT& drawn)
{
    if ((drawn.itemState & ODS_FOCUS) == 0 || (drawn.itemState & ODS_NOFOCUSRECT) != 0)
        return;
    const bool onLight = button.GetBackgroundColour().GetLuminance() >= light;
    const auto brush = static_cast<HBRUSH>(::GetStockObject(onLight ? BLACK_BRUSH : WHITE_BRUSH));
    RECT edge = drawn.rcItem;
    for (int pixel = 0; pixel < button.FromDIP(ringWidth); ++pixel)
    {
        ::FrameRect(drawn.hDC, &edge, brush);
        ::InflateRect(&edge, -1, -1);
    }
}
