// Adds up the widths of texts. One sample of each character is measured and kept, until the font changes: a plant's
// tagnames are made of a few dozen different characters.

#include "ui/grid/TextWidths.h"

#include <wx/dc.h>

#include <cmath>

namespace
{

/// Characters measured in a row: the toolkit rounds the width of a text to whole pixels.
constexpr std::size_t sampleLength = 16;

} // namespace

int TextWidths::about(const wxString& text, wxDC& dc)
{
    if (!font.IsSameAs(dc.GetFont()))
    {
        font = dc.GetFont();
        widths.clear();
    }
    double width = 0;
    for (const wxUniChar character : text)
        // Pairs that a font moves together are not known here, so a sum is near and not exact.
        width += widthOf(static_cast<wchar_t>(character.GetValue()), dc);
    return static_cast<int>(std::ceil(width));
}

double TextWidths::widthOf(wchar_t character, wxDC& dc)
{
    const auto known = widths.find(character);
    if (known != widths.end())
        return known->second;
    const double width = dc.GetTextExtent(wxString(character, sampleLength)).GetWidth() / double(sampleLength);
    return widths.emplace(character, width).first->second;
}
