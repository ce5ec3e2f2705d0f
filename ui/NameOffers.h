#pragma once

#include <wx/string.h>

#include <functional>
#include <vector>

class wxTextCtrl;

/// The names that a field offers for what is typed into it.
using NameSource = std::function<std::vector<wxString>(const wxString& typed)>;

/// Offers names in a list below a field while the user types.
///
/// The arrow keys put a name of the list into the field, and so does a click. The list is in nobody's way: Enter does
/// what it does without it, and so does a click elsewhere. Esc closes it and brings back what was typed; only the next
/// Esc is the window's.
/// @param names  asked with every change of the field, so it has to be quick; what it refers to outlives the field
void offerNames(wxTextCtrl& field, NameSource names);
