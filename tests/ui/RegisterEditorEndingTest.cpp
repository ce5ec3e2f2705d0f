#include "tests/ui/EditorUnderTest.h"

#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/combobox.h>
#include <wx/textctrl.h>

TEST(RegisterEditorEnding, OkConfirmsWhatWasTypedAndClicked)
{
    EditorUnderTest editor(DataType::Int16);
    const int result = runModal(editor,
                                [&]
                                {
                                    typeOver(*editor.tagnameField, "VALVE_7");
                                    editor.typeType("STRING");
                                    editor.typeLength("16");
                                    clickOn(*editor.writeBox);
                                    EXPECT_TRUE(waitUntil([&] { return editor.writeBox->IsChecked(); }));
                                    typeOver(*editor.descriptionField, "Valve of the seventh basin");
                                    clickOn(*editor.okButton);
                                });
    EXPECT_EQ(result, wxID_OK);
    const EditedRegister edited = editor.editedRegister();
    EXPECT_EQ(edited.tagname, "VALVE_7");
    EXPECT_EQ(edited.typeName, "STRING");
    EXPECT_EQ(edited.registerCount, 16);
    EXPECT_TRUE(edited.write);
    EXPECT_EQ(edited.description, "Valve of the seventh basin");
}

TEST(RegisterEditorEnding, ClickedSwapsAreReadBack)
{
    EditorUnderTest editor(DataType::Double, 4);
    runModal(editor,
             [&]
             {
                 for (const wxCheckBox* const box : {editor.swapBytesBox, editor.swapLongsBox})
                 {
                     clickOn(*box);
                     EXPECT_TRUE(waitUntil([box] { return box->IsChecked(); }));
                 }
                 clickOn(*editor.okButton);
             });
    const EditedRegister edited = editor.editedRegister();
    EXPECT_TRUE(edited.SwapBytes);
    EXPECT_FALSE(edited.SwapWords);
    EXPECT_TRUE(edited.SwapLongs);
}

TEST(RegisterEditorEnding, EnterConfirmsFromEveryField)
{
    for (wxTextCtrl* RegisterEditorBase::*const field :
         {&RegisterEditorBase::tagnameField, &RegisterEditorBase::lengthField, &RegisterEditorBase::descriptionField})
    {
        EditorUnderTest editor(DataType::String, 3);
        EXPECT_EQ(runModal(editor,
                           [&]
                           {
                               typeOver(*(editor.*field), "7");
                               pressKey(WXK_RETURN);
                           }),
                  wxID_OK);
    }
    EditorUnderTest editor(DataType::Int16);
    EXPECT_EQ(runModal(editor,
                       [&]
                       {
                           editor.typeType("FLOAT");
                           pressKey(WXK_RETURN);
                       }),
              wxID_OK);
}

TEST(RegisterEditorEnding, HiddenOkIsNotReachedByEnterEither)
{
    EditorUnderTest editor(DataType::String, 3, {5, 12});
    editor.explore(
        [&]
        {
            editor.typeLength("13");
            pressKey(WXK_RETURN);
            // Keys arrive in order: once the text is there, the Enter key before it has done what it does.
            typeOver(*editor.descriptionField, "still open");
            EXPECT_TRUE(editor.IsModal());
            editor.typeType("STRINGS");
            editor.typeType("STRING");
            editor.typeLength("13");
            editor.typeBox->SetFocus();
            pressKey(WXK_RETURN);
            typeOver(*editor.descriptionField, "open again");
            EXPECT_TRUE(editor.IsModal());
        });
}

TEST(RegisterEditorEnding, EmptyTagnameCancels)
{
    EditorUnderTest editor(DataType::String, 0);
    EXPECT_EQ(runModal(editor,
                       [&]
                       {
                           editor.tagnameField->SelectAll();
                           pressKey(WXK_DELETE);
                           EXPECT_TRUE(waitUntil([&] { return editor.tagnameField->IsEmpty(); }));
                           clickOn(*editor.okButton);
                       }),
              wxID_CANCEL);
}

TEST(RegisterEditorEnding, TagnameOfBlanksConfirms)
{
    EditorUnderTest editor(DataType::Int16);
    EXPECT_EQ(runModal(editor,
                       [&]
                       {
                           typeOver(*editor.tagnameField, "  ");
                           clickOn(*editor.okButton);
                       }),
              wxID_OK);
    EXPECT_EQ(editor.editedRegister().tagname, "  ");
}

TEST(RegisterEditorEnding, CancelButtonEscapeAndCloseBoxCancel)
{
    EditorUnderTest first(DataType::Int16);
    EXPECT_EQ(runModal(first, [&] { clickOn(*first.cancelButton); }), wxID_CANCEL);
    EditorUnderTest second(DataType::Int16);
    EXPECT_EQ(runModal(second, [] { pressKey(WXK_ESCAPE); }), wxID_CANCEL);
    EditorUnderTest third(DataType::Int16);
    EXPECT_EQ(runModal(third, [&] { pressCloseBox(third); }), wxID_CANCEL);
}
