// The tagname of the register editor and the names that are offered for it.

#include "tests/core/TagBuilder.h"
#include "tests/ui/EditorUnderTest.h"
#include "tests/ui/OfferedList.h"
#include "ui/ToolkitText.h"

#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/combobox.h>
#include <wx/textctrl.h>
#include <wx/timer.h>
#include <wx/uiaction.h>

namespace
{

bool listIsOpen()
{
    return openListCorner().has_value();
}

/// An editor that offers the names of a small database.
class OfferingEditor : public EditorUnderTest
{
public:
    OfferingEditor() : EditorUnderTest(DataType::Int16) { offerTagnames(tags); }

    std::string tagname() const { return modelText(tagnameField->GetValue()); }

    /// Types the beginning of a name and waits for the list.
    void typeBeginning(const std::string& text) const
    {
        typeOver(*tagnameField, text);
        EXPECT_TRUE(waitUntil(listIsOpen));
    }

    void pressAndExpect(int key, const std::string& name) const
    {
        pressKey(key);
        EXPECT_TRUE(waitUntil([&] { return tagname() == name; })) << tagname();
    }

private:
    const TagTable tags = tableOf({"PUMP_HOURS", "TANK_LEVEL", "PUMP_RUN", "PUMP_SPEED"});
};

} // namespace

TEST(RegisterEditorTagname, IsSelectedOnOpeningSoThatTypingReplacesIt)
{
    OfferingEditor editor;
    editor.explore(
        [&]
        {
            typeText("X");
            EXPECT_TRUE(waitUntil([&] { return editor.tagname() == "X"; })) << editor.tagname();
        });
}

TEST(RegisterEditorTagname, NoListIsOpenBeforeAnythingIsTyped)
{
    OfferingEditor editor;
    editor.explore(
        [&]
        {
            // GTK opens a list 100 ms after the change of the field that it is for; this is later.
            wxTimer later;
            bool isLater = false;
            later.Bind(wxEVT_TIMER, [&isLater](wxTimerEvent&) { isLater = true; });
            later.StartOnce(300);
            EXPECT_TRUE(waitUntil([&isLater] { return isLater; }));
            EXPECT_FALSE(listIsOpen());
        });
}

TEST(RegisterEditorTagname, ArrowKeysGoThroughTheOfferedNames)
{
    OfferingEditor editor;
    editor.explore(
        [&]
        {
            editor.typeBeginning("pu");
            editor.pressAndExpect(WXK_DOWN, "PUMP_HOURS");
            editor.pressAndExpect(WXK_DOWN, "PUMP_RUN");
            editor.pressAndExpect(WXK_DOWN, "PUMP_SPEED");
            editor.pressAndExpect(WXK_UP, "PUMP_RUN");
            EXPECT_TRUE(listIsOpen());
            pressKey(WXK_ESCAPE);
            EXPECT_TRUE(waitUntil([] { return !listIsOpen(); }));
        });
}

TEST(RegisterEditorTagname, EnterConfirmsWhatWasTypedWhileTheListIsOpen)
{
    OfferingEditor editor;
    EXPECT_EQ(runModal(editor,
                       [&]
                       {
                           editor.typeBeginning("PUMP");
                           pressKey(WXK_RETURN);
                       }),
              wxID_OK);
    EXPECT_EQ(editor.tagname(), "PUMP");
}

TEST(RegisterEditorTagname, EnterConfirmsTheNameThatTheArrowKeysHaveReached)
{
    OfferingEditor editor;
    EXPECT_EQ(runModal(editor,
                       [&]
                       {
                           editor.typeBeginning("pu");
                           pressKey(WXK_DOWN);
                           editor.pressAndExpect(WXK_DOWN, "PUMP_RUN");
                           pressKey(WXK_RETURN);
                       }),
              wxID_OK);
    EXPECT_EQ(editor.tagname(), "PUMP_RUN");
}

TEST(RegisterEditorTagname, EscClosesTheListFirstAndBringsBackWhatWasTyped)
{
    OfferingEditor editor;
    editor.explore(
        [&]
        {
            editor.typeBeginning("pu");
            editor.pressAndExpect(WXK_DOWN, "PUMP_HOURS");
            editor.pressAndExpect(WXK_ESCAPE, "pu");
            EXPECT_FALSE(listIsOpen());
            EXPECT_TRUE(editor.IsModal());
        });
}

TEST(RegisterEditorTagname, OneClickOnOkConfirmsWhileTheListIsOpen)
{
    OfferingEditor editor;
    EXPECT_EQ(runModal(editor,
                       [&]
                       {
                           editor.typeBeginning("PUMP");
                           clickOn(*editor.okButton);
                       }),
              wxID_OK);
    EXPECT_EQ(editor.tagname(), "PUMP");
}

TEST(RegisterEditorTagname, AClickOnAnOfferedNameTakesIt)
{
    OfferingEditor editor;
    editor.explore(
        [&]
        {
            editor.typeBeginning("TA");
            wxUIActionSimulator simulator;
            simulator.MouseMove(openListCorner().value() + wxPoint(20, 10));
            simulator.MouseClick();
            EXPECT_TRUE(waitUntil([&] { return editor.tagname() == "TANK_LEVEL" && !listIsOpen(); }));
        });
}

TEST(RegisterEditorTagname, TabLeavesTheFieldInEitherDirectionWhileTheListIsOpen)
{
    OfferingEditor editor;
    editor.explore(
        [&]
        {
            editor.typeBeginning("PUMP");
            pressKey(WXK_TAB);
            EXPECT_TRUE(waitUntil([&] { return !listIsOpen() && editor.typeBox->HasFocus(); }));
            pressKey(WXK_TAB, wxMOD_SHIFT);
            EXPECT_TRUE(waitUntil([&] { return editor.tagnameField->HasFocus(); }));
            editor.typeBeginning("PUMP");
            pressKey(WXK_TAB, wxMOD_SHIFT);
            EXPECT_TRUE(waitUntil([&] { return !listIsOpen() && editor.cancelButton->HasFocus(); }));
        });
}

TEST(RegisterEditorTagname, SixtyCharactersAreSeenAtOnce)
{
    const std::string name = "PLANT_NORTH_PUMP_STATION_17_INLET_VALVE_POSITION_FEEDBACK_AI";
    ASSERT_EQ(name.size(), 60U);
    OfferingEditor editor;
    editor.explore(
        [&] {
            EXPECT_GE(editor.tagnameField->GetClientSize().GetWidth(),
                      editor.tagnameField->GetTextExtent(name).GetWidth());
        });
}
