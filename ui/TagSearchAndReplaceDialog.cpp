#include "ui/TagSearchAndReplaceDialog.h"

void TagSearchAndReplaceDialog::OnReplace(wxCommandEvent&)
{
    EndModal(wxID_OK);
}

void TagSearchAndReplaceDialog::OnCancel(wxCommandEvent&)
{
    EndModal(wxID_CANCEL);
}
