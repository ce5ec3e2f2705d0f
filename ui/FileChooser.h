#pragma once

#include <wx/string.h>

#include <functional>

class wxWindow;

/// What to ask when the user is to choose a file.
struct FileQuestion
{
    wxString message;
    wxString folder;   ///< folder to start in; one that does not exist leaves the start to the toolkit
    wxString name;     ///< file name offered
    wxString wildcard; ///< the toolkit's filter text
    long style = 0;    ///< the toolkit's wxFD_ style bits
};

/// Lets the user choose a file; answers the full path, or an empty text when nothing was chosen.
/// A seam: tests answer in place of the desktop's file dialog.
using FileChooser = std::function<wxString(wxWindow* parent, const FileQuestion& question)>;

/// Asks with the desktop's own file dialog.
wxString chooseFileWithDialog(wxWindow* parent, const FileQuestion& question);
