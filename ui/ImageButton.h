#pragma once

#include <wx/bmpbuttn.h>

/// Creates a flat button that shows the pictures of a name.
/// @param name      plain picture; the pressed one is name + "_pressed", the hover one name + "_hover"
/// @param hovering  whether the button changes under the mouse
wxBitmapButton* createImageButton(wxWindow* parent, const wxString& name, const wxString& tooltip, bool hovering);
