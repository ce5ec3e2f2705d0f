#include "tests/ui/EditorUnderTest.h"

#include <gtest/gtest.h>
#include <wx/combobox.h>
#include <wx/textctrl.h>

TEST(RegisterEditorType, OffersTheTypesInOrder)
{
    const RegisterEditor editor(nullptr);
    EXPECT_EQ(wxJoin(editor.typeBox->GetStrings(), ' '), "INT16 INT32 FLOAT DOUBLE STRING");
}

TEST(RegisterEditorType, EntryOfAnUnknownTypeShowsAsUnkown)
{
    const EditorUnderTest editor(static_cast<DataType>(9), 3);
    EXPECT_EQ(editor.typeBox->GetValue(), "UNKOWN");
    EXPECT_EQ(editor.lengthField->GetValue(), "3");
}

TEST(RegisterEditorType, TypedTypeDecidesWhichFieldsAreSeen)
{
    EditorUnderTest editor(DataType::String, 8);
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

TEST(RegisterEditorType, DoubleAfterStringLeavesTheLengthFieldWithoutItsLabel)
{
    EditorUnderTest editor(DataType::String, 8);
    editor.explore(
        [&]
        {
            editor.typeType("DOUBLE");
            EXPECT_EQ(editor.seen(), "field Order bytes words longs ? ");
            EXPECT_EQ(editor.lengthField->GetValue(), "4");
            expectCleanLayout(editor);
        });
}

TEST(RegisterEditorType, UnknownTypeLeavesTheFieldsAndSetsTheLengthToOne)
{
    EditorUnderTest editor(DataType::String, 8);
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

TEST(RegisterEditorType, EveryTypeWritesItsOwnLength)
{
    EditorUnderTest editor(DataType::Int16);
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

TEST(RegisterEditorType, TypeIsChosenFromTheListWithTheKeyboard)
{
    EditorUnderTest editor(DataType::Int16);
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
            EXPECT_TRUE(waitUntil([&] { return editor.lengthField->GetValue() == "2"; }));
            EXPECT_EQ(editor.typeBox->GetValue(), "INT32");
            EXPECT_EQ(editor.seen(), "Order bytes words ? ");
        });
}
