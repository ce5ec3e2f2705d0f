#include "tests/soak/WorkedFrame.h"

#include "tests/ui/ControlsBelow.h"
#include "ui/CommandTable.h"
#include "ui/SourceBrowser.h"

#include <wx/app.h>
#include <wx/bmpbuttn.h>
#include <wx/checkbox.h>
#include <wx/grid.h>
#include <wx/splitter.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>

#include <functional>
#include <vector>

WorkedFrame::WorkedFrame(Document& shownDocument, FileChooser fileChooser)
    : MainFrame(shownDocument, "/suite/", std::move(fileChooser)), sourceSide(firstBelow<SourceBrowser>(*this)),
      tagGrid(firstBelow<wxGrid>(*sourceSide)), filter(firstBelow<wxTextCtrl>(*sourceSide)),
      tree(firstBelow<wxTreeCtrl>(*sourceSide))
{
}

wxString WorkedFrame::statusText() const
{
    return statusLabel->GetLabelText();
}

void WorkedFrame::tick()
{
    wxTimerEvent event(timer);
    OnTimer(event);
}

void WorkedFrame::give(const Command& command, Chance& chance)
{
    wxGrid& grid = command.grid == CommandGrid::Tags ? *tagGrid : *mapGrid;
    std::vector<std::function<void()>> ways;
    for (const CommandKey& key : command.keys)
    {
        if (key.code != 0)
            ways.emplace_back([&grid, key] { press(grid, key.code, key.control == ControlKey::Down); });
    }
    if (command.menu.id != 0)
    {
        ways.emplace_back(
            [&grid, id = command.menu.id]
            {
                wxCommandEvent event(wxEVT_MENU, id);
                grid.HandleWindowEvent(event);
            });
    }
    if (command.bar == ButtonBar::Database)
        ways.emplace_back([&] { pressButtonBelow(*sourceSide, command.tooltip); });
    else if (command.bar != ButtonBar::None)
        ways.emplace_back([&] { pressMapButton(command.tooltip); });
    ways[static_cast<std::size_t>(chance.pick(0, static_cast<int>(ways.size()) - 1))]();
}

void WorkedFrame::press(wxGrid& grid, int key, bool controlDown)
{
    wxKeyEvent event(wxEVT_KEY_DOWN);
    event.SetEventObject(&grid);
    event.m_keyCode = key;
    event.SetControlDown(controlDown);
    grid.HandleWindowEvent(event);
}

void WorkedFrame::pressMapButton(const wxString& tooltip)
{
    const auto* const inTopBar = dynamic_cast<const wxWindow*>(topBar);
    const bool isInTopBar = !buttonsCalled(*inTopBar, tooltip).empty();
    pressButtonBelow(isInTopBar ? *inTopBar : *splitter->GetWindow2(), tooltip);
}

void WorkedFrame::pressButtonBelow(const wxWindow& side, const wxString& tooltip)
{
    const std::vector<wxBitmapButton*> found = buttonsCalled(side, tooltip);
    wxCHECK_RET(!found.empty(), "no button " + tooltip);
    pressButton(*found.front());
}

void WorkedFrame::doubleClick(int row)
{
    mapGrid->ClearSelection();
    mapGrid->SelectRow(row);
    wxGridEvent event(mapGrid->GetId(), wxEVT_GRID_CELL_LEFT_DCLICK, mapGrid, row, 0);
    mapGrid->HandleWindowEvent(event);
}

void WorkedFrame::tickSomeGroup(Chance& chance)
{
    const std::vector<wxCheckBox*> boxes = controlsBelow<wxCheckBox>(*sourceSide);
    if (boxes.empty())
        return;
    wxCheckBox& box = *boxes[static_cast<std::size_t>(chance.pick(0, static_cast<int>(boxes.size()) - 1))];
    box.SetValue(!box.GetValue());
    wxCommandEvent event(wxEVT_CHECKBOX, box.GetId());
    event.SetEventObject(&box);
    event.SetInt(box.GetValue() ? 1 : 0);
    box.HandleWindowEvent(event);
}

void handleEvents()
{
    wxTheApp->Yield();
    wxTheApp->ProcessIdle();
}

void pressButton(wxButton& button)
{
    wxCommandEvent event(wxEVT_BUTTON, button.GetId());
    event.SetEventObject(&button);
    button.HandleWindowEvent(event);
}
