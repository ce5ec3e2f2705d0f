#pragma once

#include "ui/TagSearchAndReplaceDialogBase.h"

/// Asks for a text to find in tagnames and for the text to put in its place.
/// Shown modally it answers wxID_OK for "Replace", otherwise wxID_CANCEL; any text is taken, an empty one too.
class TagSearchAndReplaceDialog : public TagSearchAndReplaceDialogBase
{
public:
    using TagSearchAndReplaceDialogBase::TagSearchAndReplaceDialogBase;

protected:
    void OnReplace(wxCommandEvent& event) override;
};
