// Adds up the widths of texts. One sample of each character is measured and kept, until the font changes: a plant's
// tagnames are made of a few dozen different characters.

#include "ui/grid/TextWidths.h"

#include <wx/dc.h>

#include <cmath>

namespace
{

/// Characters measured in a row: the toolkit rounds the width of a text to whole pixels.
constexpr std::size_t sampleLength = 16;

/// Texts whose widths are kept: more than a page of the grid shows.
constexpr std::size_t keptTexts = 1000;

} // namespace

int TextWidths::about(const wxString& text, wxDC& dc)
{
    followFont(dc);
    double width = 0;
    for (const wxUniChar character : text)
        // Pairs that a font moves together are not known here, so a sum is near and not exact.
        width += widthOf(static_cast<wchar_t>(character.GetValue()), dc);
    return static_cast<int>(std::ceil(width));
}

int TextWidths::exactly(const wxString& text, wxDC& dc)
{
    followFont(dc);
    const std::wstring& key = text.ToStdWstring();
    const auto known = texts.find(key);
    if (known != texts.end())
        return known->second;
    // A plant of many texts starts over rather than keeping them all.
    if (texts.size() == keptTexts)
        texts.clear();
    return texts.emplace(key, dc.GetTextExtent(text).GetWidth()).first->second;
}

void TextWidths::followFont(const wxDC& dc)
{
    if (font.IsSameAs(dc.GetFont()))
        return;
    font = dc.GetFont();
    widths.clear();
    texts.clear();
}

double TextWidths::widthOf(wchar_t character, wxDC& dc)
{
    const auto known = widths.find(character);
    if (known != widths.end())
        return known->second;
    const double width = dc.GetTextExtent(wxString(character, sampleLength)).GetWidth() / double(sampleLength);
    return widths.emplace(character, width).first->second;
}
