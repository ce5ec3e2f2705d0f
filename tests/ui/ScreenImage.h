#pragma once

#include <wx/gdicmn.h>
#include <wx/image.h>

/// What the screen shows, windows and all.
/// @param part  pixels of the screen
wxImage screenImage(const wxRect& part);
