#include "tests/ui/EditorWindow.h"
#include "tests/ui/UiTest.h"
#include "ui/RegisterEditor.h"
#include "ui/SettingsDialog.h"
#include "ui/TagSearchAndReplaceDialog.h"

#include <gtest/gtest.h>
#include <wx/bmpbuttn.h>
#include <wx/checkbox.h>
#include <wx/combobox.h>
#include <wx/grid.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>

namespace
{

/// Two neighbours without a gap, one of an unknown tag, and a locked one.
constexpr std::string_view definition = "HOLDING,00100,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                                        "HOLDING,00101,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n"
                                        "HOLDING,00110,NONE,FLOAT,OLD_LEVEL,Level,2,UNLOCKED,ERROR\n"
                                        "HOLDING,00120,NONE,FLOAT,OLD_LEVEL,Level,2,LOCKED,ERROR\n";

constexpr const char* editTooltip = "Edit";
constexpr const char* replaceTooltip = "Tagname search and replace";
constexpr const char* settingsTooltip = "Settings and Defaults";

/// Presses a button and works the dialog that it opens.
template <class Dialog>
void workDialog(const EditorWindow& editor, const char* tooltip, const std::function<void(Dialog&)>& steps)
{
    const DialogScript script(
        [&steps](wxDialog& shown)
        {
            if (auto* const dialog = dynamic_cast<Dialog*>(&shown))
                return steps(*dialog);
            ADD_FAILURE() << "another dialog was shown";
            shown.EndModal(wxID_CANCEL);
        });
    clickOn(*editor.button(tooltip));
    EXPECT_TRUE(waitUntil([&script] { return script.hasEnded(); }));
}

/// Presses a button that is to do nothing, and waits until that is over.
void pressInVain(const EditorWindow& editor, const char* tooltip)
{
    clickOn(*editor.button(tooltip));
    // Clicks arrive in order: once this one has worked, the one before it has done what it does.
    const wxString before = editor.viewLabel->GetLabel();
    clickOn(*editor.button("Toggle view"));
    EXPECT_TRUE(waitUntil([&] { return editor.viewLabel->GetLabel() != before; }));
}

void chooseType(RegisterEditor& dialog, const std::string& name)
{
    dialog.typeBox->SetFocus();
    EXPECT_TRUE(waitUntil([&dialog] { return dialog.typeBox->HasFocus(); }));
    dialog.typeBox->SelectAll();
    typeText(name);
    EXPECT_TRUE(waitUntil([&] { return dialog.typeBox->GetValue() == name; }));
}

const RegisterEntry& holding(EditorWindow& editor, int address)
{
    return editor.registerMap().slots(RegisterSpace::Holding)[address];
}

/// Copies a tag of the database into an empty map and answers what the new row shows as its byte order.
std::string orderOfPastedTag(EditorWindow& editor, int tagRow)
{
    editor.sourceGrid->SelectRow(tagRow);
    editor.sourceGrid->SetFocus();
    EXPECT_TRUE(waitUntil([&] { return editor.sourceGrid->GetGridWindow()->HasFocus(); }));
    pressKey('C', wxMOD_CONTROL);
    EXPECT_TRUE(waitUntil([&] { return !editor.registerMap().clipboard.empty(); }));
    editor.focusMapGrid();
    pressKey('V', wxMOD_CONTROL);
    EXPECT_TRUE(waitUntil([&] { return editor.mapGrid->GetNumberRows() == 1; }));
    return editor.cell(0, 6);
}

/// Row of the tag TANK_LEVEL in the tag grid.
constexpr int floatTagRow = 4;

} // namespace

TEST(MainFrameDialogs, EditedObjectMovesItsNeighbourDown)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(0);
    workDialog<RegisterEditor>(editor, editTooltip,
                               [](RegisterEditor& dialog)
                               {
                                   EXPECT_EQ(dialog.GetTitle(), "Holding register 00100");
                                   EXPECT_EQ(dialog.okButton->GetLabel(), "Ok");
                                   chooseType(dialog, "DOUBLE");
                                   EXPECT_EQ(dialog.okButton->GetLabel(), "Ok (see warning)");
                                   clickOn(*dialog.okButton);
                               });
    EXPECT_EQ(editor.shownRows(), (std::vector<std::string>{"00100", "00104", "00110", "00120"}));
    EXPECT_EQ(editor.cell(0, 3), "DOUBLE");
    EXPECT_EQ(editor.cell(0, 4), "4");
    EXPECT_EQ(editor.cell(1, 2), "PUMP_SPEED");
}

TEST(MainFrameDialogs, EditedTagnameIsValidatedAgain)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    ASSERT_EQ(editor.cell(2, 0), "!!");
    editor.clickMapRow(2);
    workDialog<RegisterEditor>(editor, editTooltip,
                               [](RegisterEditor& dialog)
                               {
                                   typeOver(*dialog.tagnameField, "TANK_LEVEL");
                                   pressKey(WXK_RETURN);
                               });
    EXPECT_EQ(editor.cell(2, 2), "TANK_LEVEL");
    EXPECT_EQ(editor.cell(2, 0), "");
}

TEST(MainFrameDialogs, DoubleClickEditsTheRowUnderIt)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(1);
    const DialogScript script(
        [](wxDialog& dialog)
        {
            EXPECT_EQ(dialog.GetTitle(), "Holding register 00101");
            pressKey(WXK_ESCAPE);
        });
    wxUIActionSimulator().MouseDblClick();
    EXPECT_TRUE(waitUntil([&] { return script.hasEnded(); }));
    EXPECT_FALSE(editor.registerMap().isModified());
}

TEST(MainFrameDialogs, RowOfAContinuationSlotEditsItsObject)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    pressKey(WXK_SPACE);
    ASSERT_TRUE(waitUntil([&] { return editor.viewLabel->GetLabel() == "EXPANDED"; }));
    ASSERT_EQ(editor.cell(2, 1), "00102");
    editor.clickMapRow(2);
    workDialog<RegisterEditor>(editor, editTooltip,
                               [](RegisterEditor& dialog)
                               {
                                   EXPECT_EQ(dialog.GetTitle(), "Holding register 00101");
                                   EXPECT_EQ(dialog.lengthField->GetValue(), "2");
                                   pressKey(WXK_ESCAPE);
                               });
}

TEST(MainFrameDialogs, FreeRegisterBecomesAnObject)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    pressKey(WXK_SPACE);
    pressKey(WXK_SPACE);
    ASSERT_TRUE(waitUntil([&] { return editor.viewLabel->GetLabel() == "ALL"; }));
    editor.clickMapRow(5);
    workDialog<RegisterEditor>(editor, editTooltip,
                               [](RegisterEditor& dialog)
                               {
                                   EXPECT_TRUE(dialog.tagnameField->IsEmpty());
                                   typeOver(*dialog.tagnameField, "TANK_LEVEL");
                                   chooseType(dialog, "FLOAT");
                                   clickOn(*dialog.okButton);
                               });
    EXPECT_TRUE(holding(editor, 5).used);
    EXPECT_EQ(holding(editor, 5).type, DataType::Float);
    EXPECT_EQ(holding(editor, 6).tagname.view(), "TANK_LEVEL");
    EXPECT_FALSE(holding(editor, 7).used);
}

TEST(MainFrameDialogs, RegisterThatAnObjectHasLeftOpensEmptyAndTakesAnother)
{
    const PlantFiles files("HOLDING,00005,WORDS,FLOAT,TANK_LEVEL,Level,2,UNLOCKED,OK\n");
    EditorWindow& editor = *openEditor(files.startup());
    editor.nextView();
    editor.nextView();
    editor.clickMapRow(5);
    pressKey('=');
    ASSERT_TRUE(waitUntil([&] { return !holding(editor, 5).used; }));
    editor.clickMapRow(9); // else the next click would be the second one of a double-click
    editor.clickMapRow(5);
    workDialog<RegisterEditor>(editor, editTooltip,
                               [](RegisterEditor& dialog)
                               {
                                   EXPECT_TRUE(dialog.tagnameField->IsEmpty());
                                   EXPECT_TRUE(dialog.descriptionField->IsEmpty());
                                   EXPECT_EQ(dialog.typeBox->GetValue(), "INT16");
                                   EXPECT_EQ(dialog.lengthField->GetValue(), "1");
                                   EXPECT_EQ(dialog.okButton->GetLabel(), "Ok");
                                   typeOver(*dialog.tagnameField, "PUMP_RUN");
                                   pressKey(WXK_RETURN);
                               });
    EXPECT_EQ(holding(editor, 5).tagname.view(), "PUMP_RUN");
    EXPECT_EQ(holding(editor, 6).tagname.view(), "TANK_LEVEL");
    EXPECT_EQ(holding(editor, 7).tagname.view(), "TANK_LEVEL");
}

TEST(MainFrameDialogs, CancelledOrNamelessEditChangesNothing)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(0);
    workDialog<RegisterEditor>(editor, editTooltip,
                               [](RegisterEditor& dialog)
                               {
                                   typeOver(*dialog.tagnameField, "OTHER");
                                   pressKey(WXK_ESCAPE);
                               });
    workDialog<RegisterEditor>(editor, editTooltip,
                               [](RegisterEditor& dialog)
                               {
                                   dialog.tagnameField->SelectAll();
                                   pressKey(WXK_DELETE);
                                   pressKey(WXK_RETURN);
                               });
    EXPECT_FALSE(editor.registerMap().isModified());
    EXPECT_EQ(editor.selectedMapRows(), std::vector<int>{0});
}

TEST(MainFrameDialogs, EditDoesNothingOnNoRowSeveralRowsOrALockedObject)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.mapGrid->ClearSelection();
    pressInVain(editor, editTooltip);
    editor.mapGrid->SelectAll();
    pressInVain(editor, editTooltip);
    editor.mapGrid->ClearSelection();
    clickOn(*editor.button("Toggle view"));
    ASSERT_TRUE(waitUntil([&] { return editor.viewLabel->GetLabel() == "COMPRESSED"; }));
    editor.clickMapRow(3);
    pressInVain(editor, editTooltip);
    EXPECT_FALSE(editor.registerMap().isModified());
}

TEST(MainFrameDialogs, ReplaceRenamesTheSelectedRowsButNotTheLockedOnes)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    pressKey('A', wxMOD_CONTROL);
    ASSERT_TRUE(waitUntil([&] { return editor.selectedMapRows().size() == 4; }));
    workDialog<TagSearchAndReplaceDialog>(editor, replaceTooltip,
                                          [](TagSearchAndReplaceDialog& dialog)
                                          {
                                              EXPECT_EQ(dialog.GetTitle(), "Tagname Search and Replace");
                                              typeOver(*dialog.findText, "OLD");
                                              typeOver(*dialog.replaceText, "TANK");
                                              pressKey(WXK_RETURN);
                                          });
    EXPECT_EQ(editor.cell(2, 2), "TANK_LEVEL");
    EXPECT_EQ(editor.cell(2, 0), "");
    EXPECT_EQ(editor.cell(3, 2), "OLD_LEVEL");
    EXPECT_EQ(holding(editor, 111).tagname.view(), "OLD_LEVEL");
}

TEST(MainFrameDialogs, ReplacingByNothingRemovesTheText)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(2);
    workDialog<TagSearchAndReplaceDialog>(editor, replaceTooltip,
                                          [](TagSearchAndReplaceDialog& dialog)
                                          {
                                              typeOver(*dialog.findText, "OLD_");
                                              clickOn(*dialog.replaceButton);
                                          });
    EXPECT_EQ(editor.cell(2, 2), "LEVEL");
    EXPECT_EQ(editor.cell(2, 0), "!!");
}

TEST(MainFrameDialogs, ReplaceChangesNothingWithoutAFindTextOrWhenCancelled)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(2);
    workDialog<TagSearchAndReplaceDialog>(editor, replaceTooltip,
                                          [](TagSearchAndReplaceDialog& dialog)
                                          {
                                              typeOver(*dialog.replaceText, "TANK");
                                              pressKey(WXK_RETURN);
                                          });
    workDialog<TagSearchAndReplaceDialog>(editor, replaceTooltip,
                                          [](TagSearchAndReplaceDialog& dialog)
                                          {
                                              typeOver(*dialog.findText, "OLD");
                                              pressKey(WXK_ESCAPE);
                                          });
    EXPECT_FALSE(editor.registerMap().isModified());
    EXPECT_EQ(editor.selectedMapRows(), std::vector<int>{2});
}

TEST(MainFrameDialogs, ReplaceDoesNotAskWhenNothingIsSelected)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.mapGrid->ClearSelection();
    pressInVain(editor, replaceTooltip);
    EXPECT_FALSE(editor.registerMap().isModified());
}

TEST(MainFrameDialogs, SettingsKeepTheHiddenFlagsOfTheCommandLine)
{
    const PlantFiles files("");
    EditorWindow& editor = *openEditor(files.startup(14));
    workDialog<SettingsDialog>(editor, settingsTooltip,
                               [](SettingsDialog& dialog)
                               {
                                   EXPECT_TRUE(dialog.floatSwapBytes->IsChecked());
                                   EXPECT_TRUE(dialog.floatSwapWords->IsChecked());
                                   EXPECT_FALSE(dialog.intSwapBytes->IsChecked());
                                   clickOn(*dialog.okButton);
                               });
    EXPECT_EQ(orderOfPastedTag(editor, floatTagRow), "BWL");
}

TEST(MainFrameDialogs, SettingsApplyToTagsCopiedAfterwards)
{
    const PlantFiles files("");
    EditorWindow& editor = *openEditor(files.startup());
    workDialog<SettingsDialog>(editor, settingsTooltip,
                               [](SettingsDialog& dialog)
                               {
                                   clickOn(*dialog.floatSwapWords);
                                   EXPECT_TRUE(waitUntil([&] { return dialog.floatSwapWords->IsChecked(); }));
                                   clickOn(*dialog.okButton);
                               });
    EXPECT_EQ(orderOfPastedTag(editor, floatTagRow), "-W-");
}

TEST(MainFrameDialogs, CancelledSettingsAreForgotten)
{
    const PlantFiles files("");
    EditorWindow& editor = *openEditor(files.startup());
    workDialog<SettingsDialog>(editor, settingsTooltip,
                               [](SettingsDialog& dialog)
                               {
                                   clickOn(*dialog.floatSwapWords);
                                   EXPECT_TRUE(waitUntil([&] { return dialog.floatSwapWords->IsChecked(); }));
                                   pressKey(WXK_ESCAPE);
                               });
    EXPECT_EQ(orderOfPastedTag(editor, floatTagRow), "---");
}
