// The one place where the desktop's file dialog opens; tests answer in its place.

#include "ui/FileChooser.h"

#include <wx/filedlg.h>

wxString chooseFileWithDialog(wxWindow* parent, const FileQuestion& question)
{
    wxFileDialog dialog(parent, question.message, question.folder, question.name, question.wildcard, question.style);
    return dialog.ShowModal() == wxID_OK ? dialog.GetPath() : wxString();
}
