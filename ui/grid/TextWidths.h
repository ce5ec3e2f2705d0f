#pragma once

#include <wx/font.h>

#include <string>
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

    /// Pixels of a text as it is drawn. Kept for the next time: for columns that say few things over and over.
    int exactly(const wxString& text, wxDC& dc);

private:
    void followFont(const wxDC& dc);
    double widthOf(wchar_t character, wxDC& dc);

    wxFont font;
    std::unordered_map<std::wstring, int> texts;
    std::unordered_map<wchar_t, double> widths;
};
