#pragma once

#include <wx/msgdlg.h>

/// Shows a message box of the desktop and waits for its answer. Every message of the program goes through here.
///
/// Whatever the desktop makes of such boxes, the caption stands in the title bar and an icon that is asked for is seen.
/// @param style   the toolkit's wxOK or wxYES_NO, with wxICON_ERROR where something has failed
/// @param parent  the window that it belongs to, if any
/// @return wxOK, wxYES or wxNO for the button pressed; wxCANCEL after the Esc key or the close box, which answer no
///         question
int messageBox(const wxString& text, const wxString& caption = wxMessageBoxCaptionStr, long style = wxOK,
               wxWindow* parent = nullptr);
