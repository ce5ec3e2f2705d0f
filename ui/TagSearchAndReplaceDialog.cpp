#include "ui/TagSearchAndReplaceDialog.h"

void TagSearchAndReplaceDialog::OnReplace(wxCommandEvent&)
{
    EndModal(wxID_OK);
}
