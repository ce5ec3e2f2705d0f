#include "ui/RegisterEditor.h"

#include "tests/ui/UiTest.h"
#include "ui/ToolkitText.h"

#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/combobox.h>
#include <wx/display.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace
{

constexpr EditRoom plentyOfRoom{1000, 1000};

RegisterEntry entryOf(DataType type, std::uint32_t registers)
{
    RegisterEntry entry = freeSlot(42);
    entry.used = true;
    entry.type = type;
    entry.registerCount = registers;
    entry.tagname = InternedText("PUMP");
    return entry;
}

/// An editor that shows an object with plenty of room around it.
struct Editor : RegisterEditor
{
    explicit Editor(DataType type, std::uint32_t registers = 1, EditRoom entryRoom = plentyOfRoom)
        : RegisterEditor(nullptr)
    {
        showEntry(entryOf(type, registers), entryRoom);
    }

    /// Works the editor and leaves it with the Esc key.
    void explore(const std::function<void()>& steps)
    {
        EXPECT_EQ(runModal(*this,
                           [&]
                           {
                               steps();
                               pressKey(WXK_ESCAPE);
                           }),
                  wxID_CANCEL);
    }

    void typeType(const std::string& name)
    {
        typeBox->SetFocus();
        EXPECT_TRUE(waitUntil([this] { return typeBox->HasFocus(); }));
        typeBox->SelectAll();
        typeText(name);
        EXPECT_TRUE(waitUntil([&] { return modelText(typeBox->GetValue()) == name; }));
    }

    void typeLength(const std::string& digits) { typeOver(*lengthField, digits); }

    /// The fields that are seen, in the order of the labels Length and Byte Order, the field and the boxes.
    std::string seen() const
    {
        std::string names;
        const auto add = [&names](const wxWindow* control, const char* name)
        {
            if (control->IsShownOnScreen())
                names += name;
        };
        add(lengthLabel, "Length ");
        add(lengthField, "field ");
        add(byteOrderLabel, "Order ");
        add(swapBytesBox, "bytes ");
        add(swapWordsBox, "words ");
        add(swapLongsBox, "longs ");
        add(byteSwapHelpButton, "? ");
        return names;
    }

    std::string status() const { return modelText(statusLabel->GetLabel()); }

    /// The text of the button that confirms, empty while it is hidden.
    std::string ok() const { return okButton->IsShown() ? modelText(okButton->GetLabel()) : std::string(); }
};

constexpr const char* moved = "Insufficient space - registers will be moved down to create room";
constexpr const char* tooLong = "Insufficient space - please correct register type or size";
constexpr const char* noLength = "String length must be greater than zero";

} // namespace

TEST(RegisterEditor, OffersTheTypesInOrder)
{
    const RegisterEditor editor(nullptr);
    EXPECT_EQ(wxJoin(editor.typeBox->GetStrings(), ' '), "INT16 INT32 FLOAT DOUBLE STRING");
}

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

TEST(RegisterEditor, EntryOfAnUnknownTypeShowsAsUnkown)
{
    const Editor editor(static_cast<DataType>(9), 3);
    EXPECT_EQ(editor.typeBox->GetValue(), "UNKOWN");
    EXPECT_EQ(editor.lengthField->GetValue(), "3");
}

TEST(RegisterEditor, TypedTypeDecidesWhichFieldsAreSeen)
{
    Editor editor(DataType::String, 8);
    editor.explore(
        [&]
        {
            EXPECT_EQ(editor.seen(), "Length field ");
            editor.typeType("INT16");
            EXPECT_EQ(editor.seen(), "Order bytes ? ");
            editor.typeType("INT32");
            EXPECT_EQ(editor.seen(), "Order bytes words ? ");
            editor.typeType("DOUBLE");
            EXPECT_EQ(editor.seen(), "Order bytes words longs ? ");
            editor.typeType("FLOAT");
            EXPECT_EQ(editor.seen(), "Order bytes words ? ");
            editor.typeType("STRING");
            EXPECT_EQ(editor.seen(), "Length field ");
        });
}

TEST(RegisterEditor, DoubleAfterStringLeavesTheLengthFieldWithoutItsLabel)
{
    Editor editor(DataType::String, 8);
    editor.explore(
        [&]
        {
            editor.typeType("DOUBLE");
            EXPECT_EQ(editor.seen(), "field Order bytes words longs ? ");
            EXPECT_EQ(editor.lengthField->GetValue(), "4");
            expectCleanLayout(editor);
        });
}

TEST(RegisterEditor, UnknownTypeLeavesTheFieldsAndSetsTheLengthToOne)
{
    Editor editor(DataType::String, 8);
    editor.explore(
        [&]
        {
            editor.typeType("WORD");
            EXPECT_EQ(editor.seen(), "Length field ");
            EXPECT_EQ(editor.lengthField->GetValue(), "1");
            editor.typeType("DOUBLE");
            editor.typeType("double");
            EXPECT_EQ(editor.seen(), "field Order bytes words longs ? ");
            EXPECT_EQ(editor.lengthField->GetValue(), "1");
        });
    EXPECT_EQ(editor.editedRegister().typeName, "double");
}

TEST(RegisterEditor, EveryTypeWritesItsOwnLength)
{
    Editor editor(DataType::Int16);
    editor.explore(
        [&]
        {
            for (const auto& [name, length] :
                 {std::pair("INT32", "2"), std::pair("DOUBLE", "4"), std::pair("STRING", "1"), std::pair("FLOAT", "2"),
                  std::pair("INT16", "1")})
            {
                editor.typeType(name);
                EXPECT_EQ(editor.lengthField->GetValue(), length) << name;
            }
        });
}

TEST(RegisterEditor, TypeIsChosenFromTheListWithTheKeyboard)
{
    Editor editor(DataType::Int16);
    editor.explore(
        [&]
        {
            editor.typeBox->SetFocus();
            EXPECT_TRUE(waitUntil([&] { return editor.typeBox->HasFocus(); }));
            bool listOpen = false;
            editor.typeBox->Bind(wxEVT_COMBOBOX_DROPDOWN, [&](wxCommandEvent&) { listOpen = true; });
            pressKey(WXK_DOWN, wxMOD_ALT);
            EXPECT_TRUE(waitUntil([&] { return listOpen; }));
            pressKey(WXK_DOWN);
            pressKey(WXK_RETURN);
            EXPECT_TRUE(waitUntil([&] { return editor.typeBox->GetValue() != "INT16"; }));
            EXPECT_EQ(editor.typeBox->GetValue(), "INT32");
            EXPECT_EQ(editor.seen(), "Order bytes words ? ");
            EXPECT_EQ(editor.lengthField->GetValue(), "2");
        });
}

TEST(RegisterEditor, LengthIsCheckedAgainstTheRoomWithEveryKey)
{
    Editor editor(DataType::String, 3, {5, 12});
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

TEST(RegisterEditor, LengthThatTakesAllTheRoomFits)
{
    EXPECT_EQ(Editor(DataType::String, 7, EditRoom{7, 7}).ok(), "Ok");
    EXPECT_EQ(Editor(DataType::String, 7, EditRoom{6, 7}).ok(), "Ok (see warning)");
}

TEST(RegisterEditor, LargerTypeInFrontOfANeighbourIsOfferedWithAWarning)
{
    Editor editor(DataType::Int16, 1, {1, 500});
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

TEST(RegisterEditor, LengthFieldTakesNothingButNumbers)
{
    Editor editor(DataType::String, 3);
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

TEST(RegisterEditor, EmptyLengthCountsAsOneUntilItIsConfirmed)
{
    const MessageBoxAnswer message(wxID_OK);
    Editor editor(DataType::String, 3, {1, 1});
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

TEST(RegisterEditor, LengthBelowOneIsRefused)
{
    for (const char* const length : {"0", "-5"})
    {
        const MessageBoxAnswer message(wxID_OK);
        Editor editor(DataType::String, 3);
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

TEST(RegisterEditor, LengthBelowOneIsRefusedForATypeThatHidesIt)
{
    const MessageBoxAnswer message(wxID_OK);
    Editor editor(DataType::Int16, 0);
    editor.explore(
        [&]
        {
            clickOn(*editor.okButton);
            EXPECT_TRUE(waitUntil([&] { return message.count() == 1; }));
            EXPECT_EQ(message.lastMessage(), noLength);
        });
}

TEST(RegisterEditor, LengthThatIsNoNumberIsRefused)
{
    const MessageBoxAnswer message(wxID_OK);
    Editor editor(DataType::String, 3);
    editor.explore(
        [&]
        {
            editor.lengthField->SetValue("3x");
            EXPECT_EQ(editor.ok(), "Ok");
            clickOn(*editor.okButton);
            EXPECT_TRUE(waitUntil([&] { return message.count() == 1; }));
        });
}

TEST(RegisterEditor, OkConfirmsWhatWasTypedAndClicked)
{
    Editor editor(DataType::Int16);
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

TEST(RegisterEditor, ClickedSwapsAreReadBack)
{
    Editor editor(DataType::Double, 4);
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

TEST(RegisterEditor, EnterConfirmsFromEveryField)
{
    for (wxTextCtrl* RegisterEditorBase::*const field :
         {&RegisterEditorBase::tagnameField, &RegisterEditorBase::lengthField, &RegisterEditorBase::descriptionField})
    {
        Editor editor(DataType::String, 3);
        EXPECT_EQ(runModal(editor,
                           [&]
                           {
                               typeOver(*(editor.*field), "7");
                               pressKey(WXK_RETURN);
                           }),
                  wxID_OK);
    }
    Editor editor(DataType::Int16);
    EXPECT_EQ(runModal(editor,
                       [&]
                       {
                           editor.typeType("FLOAT");
                           pressKey(WXK_RETURN);
                       }),
              wxID_OK);
}

TEST(RegisterEditor, HiddenOkIsNotReachedByEnterEither)
{
    Editor editor(DataType::String, 3, {5, 12});
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

TEST(RegisterEditor, EmptyTagnameCancels)
{
    Editor editor(DataType::String, 0);
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

TEST(RegisterEditor, TagnameOfBlanksConfirms)
{
    Editor editor(DataType::Int16);
    EXPECT_EQ(runModal(editor,
                       [&]
                       {
                           typeOver(*editor.tagnameField, "  ");
                           clickOn(*editor.okButton);
                       }),
              wxID_OK);
    EXPECT_EQ(editor.editedRegister().tagname, "  ");
}

TEST(RegisterEditor, CancelButtonEscapeAndCloseBoxCancel)
{
    Editor first(DataType::Int16);
    EXPECT_EQ(runModal(first, [&] { clickOn(*first.cancelButton); }), wxID_CANCEL);
    Editor second(DataType::Int16);
    EXPECT_EQ(runModal(second, [] { pressKey(WXK_ESCAPE); }), wxID_CANCEL);
    Editor third(DataType::Int16);
    EXPECT_EQ(runModal(third, [&] { pressCloseBox(third); }), wxID_CANCEL);
}

TEST(RegisterEditor, TypingStartsInTheTagname)
{
    Editor editor(DataType::Int16);
    editor.explore(
        [&]
        {
            pressKey(WXK_END);
            typeText("S");
            EXPECT_TRUE(waitUntil([&] { return editor.tagnameField->GetValue() == "PUMPS"; }));
        });
}

TEST(RegisterEditor, HelpShowsThePictureAtTheRightEdgeAndComesBack)
{
    Editor editor(DataType::Int16);
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
    Editor editor(DataType::Int16);
    editor.explore(
        [&]
        {
            const DialogScript help([](wxDialog& dialog) { pressCloseBox(dialog); });
            clickOn(*editor.byteSwapHelpButton);
            EXPECT_TRUE(waitUntil([&] { return help.hasEnded(); }));
        });
}

TEST(RegisterEditor, NothingIsCutOffForAnyTypeOrStatus)
{
    Editor editor(DataType::String, 3, {3, 6});
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
