#include "tests/ui/EditorUnderTest.h"
#include "tests/ui/LargerText.h"
#include "ui/ToolkitText.h"

#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/combobox.h>
#include <wx/display.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

TEST(RegisterEditor, StatusIsOverwrittenBeforeItIsSeen)
{
    RegisterEditor editor(nullptr);
    EXPECT_EQ(editor.statusLabel->GetLabel(), "fhjfghj");
    editor.showEntry(entryOf(DataType::Int16, 1), plentyOfRoom);
    EXPECT_EQ(editor.statusLabel->GetLabel(), "");
}

TEST(RegisterEditor, ShowsWhatTheEntryHolds)
{
    RegisterEntry entry = entryOf(DataType::Double, 4);
    entry.tagname = InternedText("Zulauf_Süd");
    entry.description = InternedText("Durchfluss m³/h");
    entry.write = true;
    entry.SwapWords = true;
    RegisterEditor editor(nullptr);
    editor.showEntry(entry, plentyOfRoom);
    EXPECT_EQ(modelText(editor.tagnameField->GetValue()), "Zulauf_Süd");
    EXPECT_EQ(modelText(editor.descriptionField->GetValue()), "Durchfluss m³/h");
    EXPECT_EQ(editor.typeBox->GetValue(), "DOUBLE");
    EXPECT_EQ(editor.lengthField->GetValue(), "4");
    EXPECT_TRUE(editor.writeBox->IsChecked());
    EXPECT_FALSE(editor.swapBytesBox->IsChecked());
    EXPECT_TRUE(editor.swapWordsBox->IsChecked());
    EXPECT_FALSE(editor.swapLongsBox->IsChecked());
}

TEST(RegisterEditor, UnchangedEntryReadsBackAsItWas)
{
    RegisterEntry entry = entryOf(DataType::String, 12);
    entry.description = InternedText("Name, as on the sign");
    entry.SwapBytes = true;
    entry.SwapLongs = true;
    RegisterEditor editor(nullptr);
    editor.showEntry(entry, plentyOfRoom);
    const EditedRegister edited = editor.editedRegister();
    EXPECT_EQ(edited.tagname, "PUMP");
    EXPECT_EQ(edited.description, "Name, as on the sign");
    EXPECT_EQ(edited.typeName, "STRING");
    EXPECT_EQ(edited.registerCount, 12);
    EXPECT_FALSE(edited.write);
    EXPECT_TRUE(edited.SwapBytes);
    EXPECT_FALSE(edited.SwapWords);
    EXPECT_TRUE(edited.SwapLongs);
}

TEST(RegisterEditor, TypingStartsInTheTagname)
{
    EditorUnderTest editor(DataType::Int16);
    editor.explore(
        [&]
        {
            pressKey(WXK_END);
            typeText("S");
            EXPECT_TRUE(waitUntil([&] { return editor.tagnameField->GetValue() == "PUMPS"; }));
        });
}

TEST(RegisterEditor, TooltipsSayWhatTheFieldsTake)
{
    const RegisterEditor editor(nullptr);
    EXPECT_EQ(editor.tagnameField->GetToolTipText(), "a name of the tag database, without a comma or a line break");
    EXPECT_EQ(editor.lengthField->GetToolTipText(), "registers, 2 characters each");
    EXPECT_EQ(editor.descriptionField->GetToolTipText(), "no comma and no line break, or the line is not read again");
}

TEST(RegisterEditor, HelpShowsThePictureAtTheRightEdgeAndComesBack)
{
    EditorUnderTest editor(DataType::Int16);
    editor.explore(
        [&]
        {
            const DialogScript help(
                [](wxDialog& dialog)
                {
                    EXPECT_EQ(dialog.GetTitle(), "Help");
                    const auto* const picture = dynamic_cast<wxStaticBitmap*>(dialog.GetChildren().front());
                    ASSERT_NE(picture, nullptr);
                    EXPECT_TRUE(picture->GetBitmap().IsOk());
                    EXPECT_EQ(dialog.GetClientSize(), picture->GetBestSize());
                    const wxRect display = wxDisplay().GetGeometry();
                    EXPECT_EQ(dialog.GetScreenRect().GetRight() + 1, display.GetRight() + 1 - 40);
                    EXPECT_EQ(dialog.GetScreenPosition().y, (display.height - dialog.GetSize().y) / 2);
                    pressKey(WXK_ESCAPE);
                });
            clickOn(*editor.byteSwapHelpButton);
            EXPECT_TRUE(waitUntil([&] { return help.hasEnded(); }));
            EXPECT_TRUE(editor.IsModal());
        });
}

TEST(RegisterEditor, HelpClosesWithItsCloseBox)
{
    EditorUnderTest editor(DataType::Int16);
    editor.explore(
        [&]
        {
            const DialogScript help([](wxDialog& dialog) { pressCloseBox(dialog); });
            clickOn(*editor.byteSwapHelpButton);
            EXPECT_TRUE(waitUntil([&] { return help.hasEnded(); }));
        });
}

TEST(RegisterEditor, NothingIsCutOffForAnyTypeOrStatusHoweverLargeTheTextIs)
{
    for (const double factor : {1.0, 1.25, 1.5, 2.0})
    {
        const LargerText larger(factor);
        EditorUnderTest editor(DataType::String, 3, {3, 6});
        editor.explore(
            [&]
            {
                for (const char* const type : {"DOUBLE", "INT16", "INT32", "FLOAT", "STRING"})
                {
                    editor.typeType(type);
                    expectCleanLayout(editor);
                }
                for (const char* const length : {"3", "6", "7"})
                {
                    editor.typeLength(length);
                    expectCleanLayout(editor);
                }
            });
    }
}

TEST(RegisterEditor, TabGoesThroughTheControlsOfADoubleInReadingOrder)
{
    EditorUnderTest editor(DataType::Double, 4);
    editor.explore(
        [&]
        {
            expectTabReaches({editor.typeBox, editor.writeBox, editor.swapBytesBox, editor.swapWordsBox,
                              editor.swapLongsBox, editor.byteSwapHelpButton, editor.descriptionField, editor.okButton,
                              editor.cancelButton, editor.tagnameField});
            expectTabReaches({editor.cancelButton, editor.okButton, editor.descriptionField, editor.byteSwapHelpButton,
                              editor.swapLongsBox, editor.swapWordsBox, editor.swapBytesBox, editor.writeBox,
                              editor.typeBox, editor.tagnameField},
                             wxMOD_SHIFT);
        });
}

TEST(RegisterEditor, TabPassesHiddenControlsOver)
{
    EditorUnderTest text(DataType::String, 9, {5, 6});
    text.explore(
        [&]
        {
            expectTabReaches({text.typeBox, text.lengthField, text.writeBox, text.descriptionField, text.cancelButton,
                              text.tagnameField});
        });
    EditorUnderTest number(DataType::Int16);
    number.explore(
        [&]
        {
            expectTabReaches({number.typeBox, number.writeBox, number.swapBytesBox, number.byteSwapHelpButton,
                              number.descriptionField, number.okButton, number.cancelButton, number.tagnameField});
        });
}
