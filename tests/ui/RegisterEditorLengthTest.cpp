#include "tests/ui/EditorUnderTest.h"

#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/textctrl.h>

namespace
{

constexpr const char* moved = "Insufficient space - registers will be moved down to create room";
constexpr const char* tooLong = "Insufficient space - please correct register type or size";
constexpr const char* noLength = "String length must be greater than zero";

} // namespace

TEST(RegisterEditorLength, LengthIsCheckedAgainstTheRoomWithEveryKey)
{
    EditorUnderTest editor(DataType::String, 3, {5, 12});
    editor.explore(
        [&]
        {
            EXPECT_EQ(editor.status(), "");
            EXPECT_EQ(editor.ok(), "Ok");
            editor.typeLength("5");
            EXPECT_EQ(editor.status(), "");
            EXPECT_EQ(editor.ok(), "Ok");
            editor.typeLength("6");
            EXPECT_EQ(editor.status(), moved);
            EXPECT_EQ(editor.ok(), "Ok (see warning)");
            editor.typeLength("12");
            EXPECT_EQ(editor.status(), moved);
            EXPECT_EQ(editor.ok(), "Ok (see warning)");
            editor.typeLength("13");
            EXPECT_EQ(editor.status(), tooLong);
            EXPECT_EQ(editor.ok(), "");
            EXPECT_TRUE(editor.cancelButton->IsShownOnScreen());
            editor.typeLength("2");
            EXPECT_EQ(editor.status(), "");
            EXPECT_EQ(editor.ok(), "Ok");
        });
}

TEST(RegisterEditorLength, LengthThatNoNumberCanHoldIsTooLong)
{
    EditorUnderTest editor(DataType::String, 3, {5, 60000});
    editor.explore(
        [&]
        {
            // Pasted: the field takes no key that would make the number too large.
            editor.lengthField->SetValue("99999999999");
            EXPECT_EQ(editor.status(), tooLong);
            EXPECT_EQ(editor.ok(), "");
            EXPECT_TRUE(editor.cancelButton->IsShownOnScreen());
        });
}

TEST(RegisterEditorLength, LengthThatTakesAllTheRoomFits)
{
    EXPECT_EQ(EditorUnderTest(DataType::String, 7, EditRoom{7, 7}).ok(), "Ok");
    EXPECT_EQ(EditorUnderTest(DataType::String, 7, EditRoom{6, 7}).ok(), "Ok (see warning)");
}

TEST(RegisterEditorLength, LargerTypeInFrontOfANeighbourIsOfferedWithAWarning)
{
    EditorUnderTest editor(DataType::Int16, 1, {1, 500});
    editor.explore(
        [&]
        {
            editor.typeType("DOUBLE");
            EXPECT_EQ(editor.status(), moved);
            EXPECT_EQ(editor.ok(), "Ok (see warning)");
            editor.typeType("INT16");
            EXPECT_EQ(editor.status(), "");
            EXPECT_EQ(editor.ok(), "Ok");
        });
}

TEST(RegisterEditorLength, LengthFieldTakesNothingButNumbers)
{
    EditorUnderTest editor(DataType::String, 3);
    editor.explore(
        [&]
        {
            editor.lengthField->SetFocus();
            EXPECT_TRUE(waitUntil([&] { return editor.lengthField->HasFocus(); }));
            editor.lengthField->SelectAll();
            typeText("x4 y.2");
            EXPECT_TRUE(waitUntil([&] { return editor.lengthField->GetValue() == "42"; }));
        });
}

TEST(RegisterEditorLength, EmptyLengthCountsAsOneUntilItIsConfirmed)
{
    const MessageBoxAnswer message(wxID_OK);
    EditorUnderTest editor(DataType::String, 3, {1, 1});
    editor.explore(
        [&]
        {
            EXPECT_EQ(editor.ok(), "");
            editor.lengthField->SetFocus();
            EXPECT_TRUE(waitUntil([&] { return editor.lengthField->HasFocus(); }));
            editor.lengthField->SelectAll();
            pressKey(WXK_DELETE);
            EXPECT_TRUE(waitUntil([&] { return editor.ok() == "Ok"; }));
            clickOn(*editor.okButton);
            EXPECT_TRUE(waitUntil([&] { return message.count() == 1; }));
            EXPECT_EQ(message.lastMessage(), noLength);
            EXPECT_TRUE(editor.IsModal());
        });
}

TEST(RegisterEditorLength, LengthBelowOneIsRefused)
{
    for (const char* const length : {"0", "-5"})
    {
        const MessageBoxAnswer message(wxID_OK);
        EditorUnderTest editor(DataType::String, 3);
        editor.explore(
            [&]
            {
                editor.typeLength(length);
                EXPECT_EQ(editor.ok(), "Ok");
                pressKey(WXK_RETURN);
                EXPECT_TRUE(waitUntil([&] { return message.count() == 1; })) << length;
                EXPECT_EQ(message.lastMessage(), noLength);
                EXPECT_TRUE(editor.IsModal());
            });
    }
}

TEST(RegisterEditorLength, LengthBelowOneIsRefusedForATypeThatHidesIt)
{
    const MessageBoxAnswer message(wxID_OK);
    EditorUnderTest editor(DataType::Int16, 0);
    editor.explore(
        [&]
        {
            clickOn(*editor.okButton);
            EXPECT_TRUE(waitUntil([&] { return message.count() == 1; }));
            EXPECT_EQ(message.lastMessage(), noLength);
        });
}

TEST(RegisterEditorLength, LengthThatIsNoNumberIsRefused)
{
    const MessageBoxAnswer message(wxID_OK);
    EditorUnderTest editor(DataType::String, 3);
    editor.explore(
        [&]
        {
            editor.lengthField->SetValue("3x");
            EXPECT_EQ(editor.ok(), "Ok");
            clickOn(*editor.okButton);
            EXPECT_TRUE(waitUntil([&] { return message.count() == 1; }));
        });
}
