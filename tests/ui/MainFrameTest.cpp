#include "tests/ui/EditorWindow.h"
#include "tests/ui/SamePicture.h"
#include "tests/ui/UiTest.h"
#include "ui/NamedImages.h"
#include "ui/Theme.h"
#include "ui/ToolkitText.h"

#include <gtest/gtest.h>
#include <wx/bmpbuttn.h>
#include <wx/grid.h>
#include <wx/stattext.h>

namespace
{

/// An object in order, one of an unknown tag, a locked one, and one whose tag takes no write.
constexpr std::string_view definition = "COIL,00007,NONE,INT16,TANK_HIGH,Level high,1,UNLOCKED,OK\n"
                                        "HOLDING,00100,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n"
                                        "HOLDING,00110,WORDS,INT32,NOWHERE,Lost,2,UNLOCKED,ERROR\n"
                                        "HOLDING,00120,NONE,INT16,PUMP_RUN,Pump runs,1,LOCKED,OK\n"
                                        "HOLDING,00130,NONE,INT16,PUMP_RUN.1,Pump runs,1,UNLOCKED,ERROR\n";

bool showsImage(const wxBitmapButton& button, const wxString& name)
{
    return samePicture(button.GetBitmapLabel(), namedImage(name).GetBitmap(wxSize(24, 24)));
}

} // namespace

TEST(MainFrame, OpensOnTheHoldingObjectsWithTheirMarks)
{
    const PlantFiles files(definition);
    const EditorWindow& editor = *openEditor(files.startup());
    EXPECT_EQ(editor.shownRows(), (std::vector<std::string>{"00100", "00110", "00120", "00130"}));
    EXPECT_EQ(editor.cell(0, 0), "");
    EXPECT_EQ(editor.cell(1, 0), "!!");
    EXPECT_EQ(editor.cell(2, 0), "L");
    EXPECT_EQ(editor.cell(3, 0), "!!");
    EXPECT_EQ(editor.mapGrid->GetCellTextColour(1, 2), wxColour(255, 0, 0));
    EXPECT_EQ(editor.mapGrid->GetCellTextColour(0, 2), wxColour(220, 220, 220));
    EXPECT_EQ(editor.mapGrid->GetCellTextColour(3, 5), wxColour(255, 0, 0));
    EXPECT_EQ(editor.mapGrid->GetCellTextColour(0, 7), wxColour(192, 192, 192));
    EXPECT_EQ(editor.viewLabel->GetLabel(), "COMPRESSED");
    EXPECT_EQ(editor.sourceGrid->GetNumberRows(), 6);
}

TEST(MainFrame, HasNoCloseBoxAndNoSystemMenu)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    EXPECT_EQ(editor.GetWindowStyleFlag() & (wxCLOSE_BOX | wxSYSTEM_MENU), 0);
    EXPECT_NE(editor.GetWindowStyleFlag() & (wxCAPTION | wxRESIZE_BORDER), 0);
}

TEST(MainFrame, MissingDatabaseIsReportedAndTheWindowOpensOverNothing)
{
    const MessageBoxAnswer answer(wxID_OK);
    const EditorWindow& editor = *openEditor({"", "", 0});
    EXPECT_EQ(answer.count(), 1);
    EXPECT_EQ(answer.lastMessage(), "Input file not found\n");
    EXPECT_EQ(editor.sourceGrid->GetNumberRows(), 0);
    EXPECT_EQ(editor.mapGrid->GetNumberRows(), 0);
    EXPECT_EQ(editor.viewLabel->GetLabel(), "COMPRESSED");
}

TEST(MainFrame, StatusLineFollowsTheMapWithTheNextTick)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    EXPECT_TRUE(
        waitUntil([&] { return editor.statusLabel->GetLabel() == "  WARNING : 3 error(s) found in register map"; }));
    EXPECT_EQ(editor.statusLabel->GetForegroundColour(), wxColour(255, 255, 0));
    EXPECT_EQ(editor.registerMap().errorCount, 3);

    clearSlots(editor.registerMap().slots(RegisterSpace::Holding), 0, registersPerSpace);
    EXPECT_TRUE(waitUntil([&] { return editor.statusLabel->GetLabel() == "  No errors"; }));
    EXPECT_EQ(editor.statusLabel->GetForegroundColour(), wxColour(176, 176, 176));
    EXPECT_EQ(editor.registerMap().errorCount, 0);
}

TEST(MainFrame, StatusLineIsLeftAloneWhileTheCountStays)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    int ticks = 0;
    editor.Bind(wxEVT_TIMER,
                [&ticks](wxTimerEvent& event)
                {
                    event.Skip();
                    ++ticks;
                });
    ASSERT_TRUE(waitUntil([&] { return editor.statusLabel->GetLabel().StartsWith("  WARNING : 3"); }));
    editor.statusLabel->SetLabel("left alone");
    const int before = ticks;
    ASSERT_TRUE(waitUntil([&] { return ticks >= before + 2; }));
    EXPECT_EQ(editor.statusLabel->GetLabel(), "left alone");
    editor.registerMap().eraseObject(RegisterSpace::Holding, 130);
    EXPECT_TRUE(
        waitUntil([&] { return editor.statusLabel->GetLabel() == "  WARNING : 2 error(s) found in register map"; }));
}

TEST(MainFrame, SelectionHasReadableTextInBothGrids)
{
    const PlantFiles files(definition);
    const EditorWindow& editor = *openEditor(files.startup());
    for (const wxGrid* const grid : {editor.mapGrid, editor.sourceGrid})
    {
        EXPECT_EQ(grid->GetSelectionBackground(), wxColour(51, 153, 255));
        EXPECT_EQ(grid->GetSelectionForeground(), theme::colour(theme::selectionText));
    }
}

TEST(MainFrame, SpaceButtonsShowTheirSpaceAndStayPressed)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    EXPECT_TRUE(showsImage(*editor.button("Show Holding Registers"), "png_tool_holding_pressed"));
    EXPECT_TRUE(showsImage(*editor.button("Show Coil Registers"), "png_tool_coil"));

    clickOn(*editor.button("Show Coil Registers"));
    EXPECT_TRUE(waitUntil([&] { return editor.registerMap().currentSpace == RegisterSpace::Coil; }));
    EXPECT_EQ(editor.shownRows(), std::vector<std::string>{"00007"});
    EXPECT_TRUE(showsImage(*editor.button("Show Coil Registers"), "png_tool_coil_pressed"));
    EXPECT_TRUE(showsImage(*editor.button("Show Holding Registers"), "png_tool_holding"));

    clickOn(*editor.button("Show Input Registers"));
    EXPECT_TRUE(waitUntil([&] { return editor.registerMap().currentSpace == RegisterSpace::Input; }));
    EXPECT_TRUE(editor.shownRows().empty());
    clickOn(*editor.button("Show Status Registers"));
    EXPECT_TRUE(waitUntil([&] { return editor.registerMap().currentSpace == RegisterSpace::Status; }));
    EXPECT_TRUE(showsImage(*editor.button("Show Status Registers"), "png_tool_status_pressed"));
    clickOn(*editor.button("Show Holding Registers"));
    EXPECT_TRUE(waitUntil([&] { return editor.registerMap().currentSpace == RegisterSpace::Holding; }));
}

TEST(MainFrame, ChoosingASpaceLandsOnItsFirstRow)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    pressKey(WXK_SPACE);
    pressKey(WXK_SPACE);
    ASSERT_TRUE(waitUntil([&] { return editor.mapGrid->GetNumberRows() == registersPerSpace; }));
    editor.mapGrid->MakeCellVisible(40000, 0);
    ASSERT_FALSE(editor.mapGrid->IsVisible(0, 0));
    clickOn(*editor.button("Show Coil Registers"));
    EXPECT_TRUE(waitUntil([&] { return editor.mapGrid->IsVisible(0, 0); }));
    EXPECT_EQ(editor.mapGrid->GetFirstFullyVisibleRow(), 0);
}

TEST(MainFrame, SpaceKeyAndViewButtonGoRoundTheThreeViews)
{
    const PlantFiles files(definition);
    const EditorWindow& editor = *openEditor(files.startup());
    const auto shows = [&](const char* label, int rows) {
        return waitUntil([&] { return editor.viewLabel->GetLabel() == label; }) &&
               editor.mapGrid->GetNumberRows() == rows;
    };
    pressKey(WXK_SPACE);
    EXPECT_TRUE(shows("EXPANDED", 6));
    EXPECT_EQ(editor.cell(1, 2), ":");
    pressKey(WXK_SPACE);
    EXPECT_TRUE(shows("ALL", registersPerSpace));
    EXPECT_EQ(editor.cell(99, 1), "00099");
    EXPECT_EQ(editor.mapGrid->GetCellTextColour(99, 1), wxColour(80, 80, 80));
    pressKey(WXK_SPACE);
    EXPECT_TRUE(shows("COMPRESSED", 4));
    clickOn(*editor.button("Toggle view"));
    EXPECT_TRUE(shows("EXPANDED", 6));
}

TEST(MainFrame, ViewButtonLeavesTheKeyboardWithTheGrid)
{
    const PlantFiles files(definition);
    const EditorWindow& editor = *openEditor(files.startup());
    clickOn(*editor.button("Toggle view"));
    ASSERT_TRUE(waitUntil([&] { return editor.viewLabel->GetLabel() == "EXPANDED"; }));
    EXPECT_TRUE(editor.mapGrid->GetGridWindow()->HasFocus());
    pressKey(WXK_SPACE);
    EXPECT_TRUE(waitUntil([&] { return editor.viewLabel->GetLabel() == "ALL"; }));
}

TEST(MainFrame, ControlASelectsEveryRow)
{
    const PlantFiles files(definition);
    const EditorWindow& editor = *openEditor(files.startup());
    pressKey('A', wxMOD_CONTROL);
    EXPECT_TRUE(waitUntil([&] { return editor.selectedMapRows() == (std::vector<int>{0, 1, 2, 3}); }));
}

TEST(MainFrame, UnmodifiedMapLeavesWithoutAQuestion)
{
    const PlantFiles files(definition);
    const EditorWindow* const editor = openEditor(files.startup());
    clickOn(*editor->button("Exit without saving"));
    EXPECT_TRUE(waitUntilGone(editor));
    EXPECT_EQ(files.definition(), definition);
}

TEST(MainFrame, MapChangedAndChangedBackLeavesWithoutAQuestion)
{
    const PlantFiles files(definition);
    EditorWindow* const editor = openEditor(files.startup());
    editor->clickMapRow(0);
    const RegisterEntry& slot = editor->registerMap().currentSlots()[100];
    clickOn(*editor->button("Toggle register lock"));
    EXPECT_TRUE(waitUntil([&] { return slot.locked; }));
    EXPECT_TRUE(editor->registerMap().isModified());
    clickOn(*editor->button("Toggle register lock"));
    EXPECT_TRUE(waitUntil([&] { return !slot.locked; }));
    clickOn(*editor->button("Exit without saving"));
    EXPECT_TRUE(waitUntilGone(editor));
}

TEST(MainFrame, YesSavesTheChangedMap)
{
    const PlantFiles files(definition);
    EditorWindow* const editor = openEditor(files.startup());
    editor->registerMap().eraseObject(RegisterSpace::Holding, 110);
    editor->registerMap().eraseObject(RegisterSpace::Holding, 130);
    const MessageBoxAnswer answer(wxID_YES);
    clickOn(*editor->button("Exit without saving"));
    EXPECT_TRUE(waitUntilGone(editor));
    EXPECT_EQ(answer.lastMessage(), "Save changes ?");
    EXPECT_EQ(files.definition(), "COIL,00007,NONE,INT16,TANK_HIGH,Level high,1,UNLOCKED,OK\n"
                                  "HOLDING,00100,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n"
                                  "HOLDING,00120,NONE,INT16,PUMP_RUN,Pump runs,1,LOCKED,OK\n");
}

TEST(MainFrame, NoLeavesTheFileAsItWas)
{
    const PlantFiles files(definition);
    EditorWindow* const editor = openEditor(files.startup());
    editor->registerMap().eraseObject(RegisterSpace::Holding, 110);
    const MessageBoxAnswer answer(wxID_NO);
    clickOn(*editor->button("Exit without saving"));
    EXPECT_TRUE(waitUntilGone(editor));
    EXPECT_EQ(answer.count(), 1);
    EXPECT_EQ(files.definition(), definition);
}

TEST(MainFrame, ClosingTheBoxOfTheSaveQuestionGoesBackToTheEditor)
{
    const PlantFiles files(definition);
    EditorWindow* const editor = openEditor(files.startup());
    editor->registerMap().eraseObject(RegisterSpace::Holding, 110);
    const MessageBoxAnswer closed(wxID_CANCEL);
    clickOn(*editor->button("Exit without saving"));
    EXPECT_TRUE(waitUntil([&] { return closed.count() == 1; }));
    editor->focusMapGrid();
    EXPECT_FALSE(editor->IsBeingDeleted());
    EXPECT_EQ(files.definition(), definition);
}

TEST(MainFrame, CloseRequestEndsWithoutAQuestionAndWithoutSaving)
{
    const PlantFiles files(definition);
    EditorWindow* const editor = openEditor(files.startup());
    editor->registerMap().eraseObject(RegisterSpace::Holding, 110);
    editor->Close();
    EXPECT_TRUE(waitUntilGone(editor));
    EXPECT_EQ(files.definition(), definition);
}

TEST(MainFrame, SavingWithoutAPathAsksForOneAndCancellingGoesBackToTheEditor)
{
    const TempFolder folder;
    const PlantFiles files("");
    EditorWindow* const editor = openEditor({files.startup().database, "", 0});
    editor->registerMap().placeObject(RegisterSpace::Coil, 3, freeSlot(3), 1);
    wxString chosen;
    int questions = 0;
    editor->setFileChooser(
        [&](wxWindow*, const FileQuestion&)
        {
            ++questions;
            return chosen;
        });
    const MessageBoxAnswer answer(wxID_YES);
    clickOn(*editor->button("Exit without saving"));
    EXPECT_TRUE(waitUntil([&] { return questions == 1; }));
    EXPECT_FALSE(editor->IsBeingDeleted());
    EXPECT_TRUE(editor->registerMap().isModified());

    chosen = (folder / "new.csv").string();
    clickOn(*editor->button("Exit without saving"));
    EXPECT_TRUE(waitUntilGone(editor));
    EXPECT_EQ(questions, 2);
    EXPECT_TRUE(std::filesystem::exists(folder / "new.csv"));
}

TEST(MainFrame, FileRemovedMeanwhileIsCreatedAgain)
{
    const PlantFiles files(definition);
    EditorWindow* const editor = openEditor(files.startup());
    std::filesystem::remove(files.startup().definition);
    clearSlots(editor->registerMap().slots(RegisterSpace::Holding), 0, registersPerSpace);
    const MessageBoxAnswer answer(wxID_YES);
    clickOn(*editor->button("Exit without saving"));
    EXPECT_TRUE(waitUntilGone(editor));
    EXPECT_EQ(files.definition(), "COIL,00007,NONE,INT16,TANK_HIGH,Level high,1,UNLOCKED,OK\n");
}

TEST(MainFrame, AnotherSpaceStartsWithTheCursorOnItsFirstRow)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(3);
    clickOn(*editor.button("Show Coil Registers"));
    ASSERT_TRUE(waitUntil([&] { return editor.shownRows() == std::vector<std::string>{"00007"}; }));
    clickOn(*editor.button("Show Holding Registers"));
    ASSERT_TRUE(waitUntil([&] { return editor.shownRows().size() == 4; }));
    EXPECT_EQ(editor.mapGrid->GetGridCursorRow(), 0);

    editor.nextView();
    editor.nextView();
    editor.clickMapRow(9);
    clickOn(*editor.button("Show Input Registers"));
    ASSERT_TRUE(waitUntil([&] { return editor.registerMap().currentSpace == RegisterSpace::Input; }));
    EXPECT_EQ(editor.mapGrid->GetGridCursorRow(), 0);
}
