#include "tests/ui/MenuScript.h"

#include "tests/ui/UiTest.h"
#include "ui/ToolkitText.h"

#include <wx/menu.h>
#include <wx/uiaction.h>
#include <wx/window.h>

#include <algorithm>

MenuScript::MenuScript(wxWindow& owner, std::string entry) : window(owner), wanted(std::move(entry))
{
    window.Bind(wxEVT_MENU_OPEN, &MenuScript::onOpen, this);
}

MenuScript::~MenuScript()
{
    window.Unbind(wxEVT_MENU_OPEN, &MenuScript::onOpen, this);
}

void MenuScript::onOpen(wxMenuEvent& event)
{
    entries.clear();
    int steps = 0;
    bool found = false;
    for (const wxMenuItem* const item : event.GetMenu()->GetMenuItems())
    {
        if (item->IsSeparator())
        {
            entries.emplace_back("-");
            continue;
        }
        const std::string text = modelText(item->GetItemLabelText());
        std::string full = modelText(item->GetItemLabel());
        std::replace(full.begin(), full.end(), '\t', '|');
        entries.push_back(std::to_string(item->GetId()) + " " + full);
        steps += found ? 0 : 1;
        found = found || text == wanted;
    }
    window.CallAfter(
        [steps, found]
        {
            for (int step = 0; found && step < steps; ++step)
                pressKey(WXK_DOWN);
            pressKey(found ? WXK_RETURN : WXK_ESCAPE);
        });
    event.Skip();
}

namespace
{

void clickAt(const wxWindow& window, wxPoint place, int mouseButton)
{
    const wxPoint onScreen = window.ClientToScreen(place);
    wxUIActionSimulator simulator;
    simulator.MouseMove(onScreen.x, onScreen.y);
    simulator.MouseClick(mouseButton);
}

} // namespace

void leftClickOn(const wxWindow& window, int x, int y)
{
    clickAt(window, wxPoint(x, y), wxMOUSE_BTN_LEFT);
}

void rightClickOn(const wxWindow& window, int x, int y)
{
    clickAt(window, wxPoint(x, y), wxMOUSE_BTN_RIGHT);
}
