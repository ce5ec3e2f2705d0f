#include "tests/ui/EditorUnderTest.h"

#include "ui/ToolkitText.h"

#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/combobox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

RegisterEntry entryOf(DataType type, std::uint32_t registers)
{
    RegisterEntry entry = freeSlot(42);
    entry.used = true;
    entry.type = type;
    entry.registerCount = registers;
    entry.tagname = InternedText("PUMP");
    return entry;
}

EditorUnderTest::EditorUnderTest(DataType type, std::uint32_t registers, EditRoom entryRoom) : RegisterEditor(nullptr)
{
    showEntry(entryOf(type, registers), entryRoom);
}

void EditorUnderTest::explore(const std::function<void()>& steps)
{
    EXPECT_EQ(runModal(*this,
                       [&]
                       {
                           steps();
                           pressKey(WXK_ESCAPE);
                       }),
              wxID_CANCEL);
}

void EditorUnderTest::typeType(const std::string& name)
{
    typeBox->SetFocus();
    EXPECT_TRUE(waitUntil([this] { return typeBox->HasFocus(); }));
    typeBox->SelectAll();
    typeText(name);
    EXPECT_TRUE(waitUntil([&] { return modelText(typeBox->GetValue()) == name; }));
}

void EditorUnderTest::typeLength(const std::string& digits)
{
    typeOver(*lengthField, digits);
}

std::string EditorUnderTest::seen() const
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

std::string EditorUnderTest::status() const
{
    return modelText(statusLabel->GetLabel());
}

std::string EditorUnderTest::ok() const
{
    return okButton->IsShown() ? modelText(okButton->GetLabel()) : std::string();
}
