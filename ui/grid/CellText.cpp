// Cuts long texts before the toolkit gets them. Tagnames and descriptions come from files and have no largest length,
// but the layout library works through a whole text before the first of its characters is drawn. One text of a megabyte
// would make every repaint of the grid wait.

#include "ui/grid/CellText.h"

#include <algorithm>

namespace
{

/// The layout library under the toolkit starts a new line at each of these.
constexpr const wchar_t* lineEnds = L"\n\r\u2028\u2029";

/// Wider than any screen, also in the narrowest letters.
constexpr std::size_t cellCharacters = 1000;

/// A tooltip of the desktop is about 50 characters wide, so both limits fill about two thirds of a common screen.
constexpr std::size_t tooltipCharacters = 2000;
constexpr std::size_t tooltipLines = 40;

} // namespace

namespace cellText
{

wxString ellipsis()
{
    return L"\u2026";
}

wxString beginning(const wxString& text, std::size_t lines, std::size_t characters)
{
    std::size_t end = text.find_first_of(lineEnds);
    for (std::size_t line = 1; line < lines && end != wxString::npos; ++line)
        end = text.find_first_of(lineEnds, end + 1);
    // A text of one line has no end of line to cut at: npos is larger than any limit.
    end = std::min(end, characters);
    return end >= text.length() ? text : text.Left(end) + ellipsis();
}

wxString forCell(const wxString& text)
{
    return beginning(text, 1, cellCharacters);
}

wxString forTooltip(const wxString& text)
{
    return beginning(text, tooltipLines, tooltipCharacters);
}

} // namespace cellText
