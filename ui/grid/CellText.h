#pragma once

#include <wx/string.h>

#include <cstddef>

/// How much of a text is shown where there is no room for all of it. Texts come from files and may be of any size;
/// laying out a hundred thousand characters or lines takes the toolkit longer than anybody waits.
namespace cellText
{

/// Ends a text that goes on.
wxString ellipsis();

/// The beginning of a text, with an ellipsis if it goes on.
/// @param lines       lines to keep at most, 1 or more; what ends one is any mark that the toolkit starts a new one at
/// @param characters  characters to keep at most
wxString beginning(const wxString& text, std::size_t lines, std::size_t characters);

/// What a cell draws: one line, of a length that no screen can show.
wxString forCell(const wxString& text);

/// What a tooltip shows: as much as a screen takes.
wxString forTooltip(const wxString& text);

} // namespace cellText
