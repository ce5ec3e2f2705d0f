#include "tests/ui/EditorWindow.h"

#include "tests/ui/ControlsBelow.h"
#include "tests/ui/MenuScript.h"
#include "tests/ui/UiTest.h"
#include "ui/SourceBrowser.h"
#include "ui/ToolkitText.h"
#include "ui/grid/GridSelection.h"

#include <gtest/gtest.h>
#include <wx/bmpbuttn.h>
#include <wx/grid.h>
#include <wx/scrolwin.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>
#include <wx/uiaction.h>

#include <fstream>
#include <iterator>

namespace
{

/// Two groups, a tree of two levels, tags of all three types; PUMP_SPEED_SP and PUMP_NAME take writes.
constexpr std::string_view databaseText = R"({
 "database_groups": [
  {"mask": "1", "flag": "ALM", "type": "flag", "desc": "Alarms"},
  {"mask": "2", "flag": "SET", "type": "flag", "desc": "Set-points"}],
 "structure": [{"lable": "Works", "dbprefix": "", "structure": [
  {"lable": "Pump", "dbprefix": "PUMP_"}, {"lable": "Tank", "dbprefix": "TANK_"}]}],
 "database": [
  {"Name": "PUMP_RUN", "Description": "Pump runs", "Type": "Integer", "Size": 2, "Elements": 1, "Groups": 0},
  {"Name": "PUMP_SPEED", "Description": "Speed", "Type": "Numeric", "Size": 4, "Elements": 1, "Groups": 0},
  {"Name": "PUMP_SPEED_SP", "Description": "Speed wanted", "Type": "Numeric", "Size": 4, "Elements": 2, "Groups": 2},
  {"Name": "PUMP_NAME", "Description": "Maker", "Type": "String", "Size": 6, "Elements": 2, "Groups": 0},
  {"Name": "TANK_LEVEL", "Description": "Level", "Type": "Numeric", "Size": 4, "Elements": 1, "Groups": 0},
  {"Name": "TANK_HIGH", "Description": "Level high", "Type": "Integer", "Size": 2, "Elements": 1, "Groups": 3}]})";

} // namespace

ShownDocument::ShownDocument(const DocumentFiles& files)
    : shown(files.database, files.definition, files.swapFlags), loading(shown)
{
}

EditorWindow::EditorWindow(const DocumentFiles& files)
    : ShownDocument(files),
      MainFrame(
          shown, "/suite/",
          [this](wxWindow* parent, const FileQuestion& question) { return chooser(parent, question); }, &loading),
      sourceBrowser(firstBelow<SourceBrowser>(*this)), sourceTree(firstBelow<wxTreeCtrl>(*sourceBrowser)),
      sourceFilter(firstBelow<wxTextCtrl>(*sourceBrowser)), sourceGrid(firstBelow<wxGrid>(*sourceBrowser)),
      groupFilters(firstBelow<wxScrolledWindow>(*sourceBrowser))
{
}

wxBitmapButton* EditorWindow::button(const wxString& tooltip) const
{
    const std::vector<wxBitmapButton*> found = buttonsCalled(*this, tooltip);
    if (found.empty())
        throw std::invalid_argument("no button \"" + modelText(tooltip) + "\"");
    return found.back();
}

wxBitmapButton* EditorWindow::sourceCopyButton() const
{
    return buttonsCalled(*sourceBrowser, "Copy - ctrl c").at(0);
}

std::string EditorWindow::cell(int row, int column) const
{
    return modelText(mapGrid->GetCellValue(row, column));
}

std::vector<std::string> EditorWindow::shownRows() const
{
    std::vector<std::string> rows;
    rows.reserve(static_cast<std::size_t>(mapGrid->GetNumberRows()));
    for (int row = 0; row < mapGrid->GetNumberRows(); ++row)
        rows.push_back(cell(row, 1));
    return rows;
}

std::vector<int> EditorWindow::selectedMapRows() const
{
    return selectedRows(*mapGrid);
}

void EditorWindow::clickMapRow(int row)
{
    mapGrid->MakeCellVisible(row, 2);
    const wxRect rect = mapGrid->CellToRect(row, 2);
    const wxPoint middle(rect.x + rect.width / 2, rect.y + rect.height / 2);
    const wxPoint onScreen = mapGrid->GetGridWindow()->ClientToScreen(mapGrid->CalcScrolledPosition(middle));
    wxUIActionSimulator simulator;
    simulator.MouseMove(onScreen.x, onScreen.y);
    simulator.MouseClick();
    EXPECT_TRUE(waitUntil([&] { return selectedMapRows() == std::vector<int>{row}; })) << "row " << row;
}

void EditorWindow::rightClickMapRow(int row)
{
    const int height = mapGrid->GetDefaultRowSize();
    const wxPoint place = mapGrid->CalcScrolledPosition(wxPoint(100, row * height + height / 2));
    rightClickOn(*mapGrid->GetGridWindow(), place.x, place.y);
}

void EditorWindow::focusMapGrid()
{
    mapGrid->SetFocus();
    EXPECT_TRUE(waitUntil([this] { return mapGrid->GetGridWindow()->HasFocus(); }));
}

void EditorWindow::nextView()
{
    const wxString before = viewLabel->GetLabel();
    pressKey(WXK_SPACE);
    EXPECT_TRUE(waitUntil([&] { return viewLabel->GetLabel() != before; }));
}

PlantFiles::PlantFiles(std::string_view definition)
{
    folder.write("plant.json", databaseText);
    folder.write("plant.csv", definition);
}

DocumentFiles PlantFiles::startup(long swapFlags) const
{
    return {(folder / "plant.json").string(), (folder / "plant.csv").string(), swapFlags};
}

std::string PlantFiles::definition() const
{
    // As text: the lines have the ends of the system.
    std::ifstream file(folder / "plant.csv");
    return file ? std::string(std::istreambuf_iterator<char>(file), {}) : "no file";
}

EditorWindow* openEditor(const DocumentFiles& files)
{
    auto* const editor = new EditorWindow(files);
    editor->Show();
    editor->settleLayout();
    editor->Raise();
    EXPECT_TRUE(waitUntil([editor] { return editor->IsActive(); }));
    editor->focusMapGrid();
    return editor;
}

bool waitUntilGone(const wxWindow* window)
{
    return waitUntil([window] { return !wxTopLevelWindows.Member(const_cast<wxWindow*>(window)); });
}
