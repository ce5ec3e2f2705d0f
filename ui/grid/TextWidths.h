#pragma once

#include <wx/font.h>

#include <unordered_map>

class wxDC;
class wxString;

/// Widths of texts in one font, added up from widths of characters that are measured once each.
///
/// Measuring a text takes the toolkit longer than drawing it; a full grid has hundreds of them and a column has tens of
/// thousands. A sum is exact enough to tell what fits easily and which text is the longest.
class TextWidths
{
public:
    /// Pixels of a text, a few more or less where the font moves pairs of characters together or apart.
    /// @param dc  with the font in which the text is to be drawn
    int about(const wxString& text, wxDC& dc);

private:
    double widthOf(wchar_t character, wxDC& dc);

    wxFont font;
    std::unordered_map<wchar_t, double> widths;
};
