#include "ui/MessageBox.h"

int messageBox(const wxString& text, const wxString& caption, long style, wxWindow* parent)
{
    return wxMessageBox(text, caption, style, parent);
}
