// The desktop's message box has caption and icon without further help.

#include "ui/MessageBox.h"

int messageBox(const wxString& text, const wxString& caption, long style, wxWindow* parent)
{
    return wxMessageBox(text, caption, style, parent);
}
