// Whatever was typed is taken; whether there is anything to do with it is for the command to say.

#include "ui/TagSearchAndReplaceDialog.h"

void TagSearchAndReplaceDialog::OnReplace(wxCommandEvent&)
{
    EndModal(wxID_OK);
}
