#pragma once

#include <wx/bmpbndl.h>
#include <wx/iconbndl.h>

/// The picture that the executable holds under a name, at single and at double scale.
/// @param name  name without extension, for example "png_tool_copy_hover"
/// @return an invalid bundle when there is no such picture
wxBitmapBundle namedImage(const wxString& name);

/// The picture of that name as icons of single and double size, for a window's title bar and the task list.
wxIconBundle namedIcon(const wxString& name);
