#include "ui/TagSearchAndReplaceDialog.h"

#include "tests/ui/LargerText.h"
#include "tests/ui/UiTest.h"

#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace
{

struct Dialog : TagSearchAndReplaceDialog
{
    Dialog() : TagSearchAndReplaceDialog(nullptr, wxID_ANY, "Tagname Search and Replace") {}
};

} // namespace

TEST(TagSearchAndReplaceDialog, StartsEmptyWithTheFirstFieldReadyForTyping)
{
    Dialog dialog;
    EXPECT_EQ(dialog.GetTitle(), "Tagname Search and Replace");
    EXPECT_EQ(dialog.findLabel->GetLabel(), "Find in Tagname");
    EXPECT_EQ(dialog.replaceLabel->GetLabel(), "Replace with");
    EXPECT_TRUE(dialog.findText->IsEmpty());
    EXPECT_TRUE(dialog.replaceText->IsEmpty());
    runModal(dialog,
             [&]
             {
                 typeText("PLC1_");
                 EXPECT_TRUE(waitUntil([&] { return dialog.findText->GetValue() == "PLC1_"; }));
                 pressKey(WXK_ESCAPE);
             });
}

TEST(TagSearchAndReplaceDialog, ReplaceButtonConfirmsWhatWasTyped)
{
    Dialog dialog;
    const int result = runModal(dialog,
                                [&]
                                {
                                    typeOver(*dialog.findText, "PLC1_");
                                    typeOver(*dialog.replaceText, "PLC2_");
                                    clickOn(*dialog.replaceButton);
                                });
    EXPECT_EQ(result, wxID_OK);
    EXPECT_EQ(dialog.findText->GetValue(), "PLC1_");
    EXPECT_EQ(dialog.replaceText->GetValue(), "PLC2_");
}

TEST(TagSearchAndReplaceDialog, EnterConfirmsFromEitherField)
{
    for (wxTextCtrl* TagSearchAndReplaceDialogBase::*const field :
         {&TagSearchAndReplaceDialogBase::findText, &TagSearchAndReplaceDialogBase::replaceText})
    {
        Dialog dialog;
        const int result = runModal(dialog,
                                    [&]
                                    {
                                        typeOver(*(dialog.*field), "x");
                                        pressKey(WXK_RETURN);
                                    });
        EXPECT_EQ(result, wxID_OK);
    }
}

TEST(TagSearchAndReplaceDialog, NothingTypedIsConfirmedAllTheSame)
{
    Dialog dialog;
    EXPECT_EQ(runModal(dialog, [] { pressKey(WXK_RETURN); }), wxID_OK);
    EXPECT_TRUE(dialog.findText->IsEmpty());
}

TEST(TagSearchAndReplaceDialog, CancelButtonEscapeAndCloseBoxCancel)
{
    Dialog first;
    EXPECT_EQ(runModal(first, [&] { clickOn(*first.cancelButton); }), wxID_CANCEL);
    Dialog second;
    EXPECT_EQ(runModal(second, [] { pressKey(WXK_ESCAPE); }), wxID_CANCEL);
    Dialog third;
    EXPECT_EQ(runModal(third, [&] { pressCloseBox(third); }), wxID_CANCEL);
}

TEST(TagSearchAndReplaceDialog, TabGoesThroughFieldsAndButtonsInReadingOrder)
{
    Dialog dialog;
    runModal(dialog,
             [&]
             {
                 expectTabReaches({dialog.replaceText, dialog.replaceButton, dialog.cancelButton, dialog.findText});
                 expectTabReaches({dialog.cancelButton, dialog.replaceButton, dialog.replaceText, dialog.findText},
                                  wxMOD_SHIFT);
                 pressKey(WXK_ESCAPE);
             });
}

TEST(TagSearchAndReplaceDialog, LongTextsAreTakenWhole)
{
    const wxString text('x', 5000);
    Dialog dialog;
    dialog.findText->SetValue(text);
    EXPECT_EQ(runModal(dialog, [] { pressKey(WXK_RETURN); }), wxID_OK);
    EXPECT_EQ(dialog.findText->GetValue(), text);
}

TEST(TagSearchAndReplaceDialog, NothingIsCutOffHoweverLargeTheTextIs)
{
    for (const double factor : {1.0, 1.25, 1.5, 2.0})
    {
        const LargerText larger(factor);
        Dialog dialog;
        runModal(dialog,
                 [&]
                 {
                     expectCleanLayout(dialog);
                     pressKey(WXK_ESCAPE);
                 });
    }
}
