#include "benchmarks/DrivenFrame.h"

#include "benchmarks/FullSize.h"
#include "ui/OpenDocument.h"

#include <gdk/gdk.h>
#include <wx/app.h>
#include <wx/grid.h>
#include <wx/textctrl.h>

namespace
{

/// The first window below another one that fits.
/// @param fits  told a window, says whether it is meant
template <class F>
wxWindow* findBelow(const wxWindow& parent, F fits)
{
    for (wxWindow* const child : parent.GetChildren())
    {
        if (fits(child))
            return child;
        if (wxWindow* const found = findBelow(*child, fits))
            return found;
    }
    return nullptr;
}

wxWindow* findByTooltip(const wxWindow& parent, const wxString& tooltip)
{
    return findBelow(parent, [&](const wxWindow* window) { return window->GetToolTipText() == tooltip; });
}

wxGrid* findOtherGrid(const wxWindow& parent, const wxGrid* known)
{
    const auto isOther = [&](const wxWindow* window)
    { return window != known && window->IsKindOf(wxCLASSINFO(wxGrid)); };
    return dynamic_cast<wxGrid*>(findBelow(parent, isOther));
}

/// Waits until the screen's server has done all that it was asked for.
void syncWithScreen()
{
    gdk_display_sync(gdk_display_get_default());
}

} // namespace

DrivenDocument::DrivenDocument(const std::filesystem::path& database, const std::filesystem::path& definition)
    : driven(database, definition, 0)
{
    openDocument(driven);
}

DrivenFrame::DrivenFrame(const std::filesystem::path& database, const std::filesystem::path& definition)
    : DrivenDocument(database, definition), MainFrame(driven, "/suite/"), tagGrid(findOtherGrid(*this, mapGrid)),
      filter(dynamic_cast<wxTextCtrl*>(findByTooltip(*this, "Tagname and Description filter")))
{
}

void DrivenFrame::press(int key, bool control)
{
    wxKeyEvent event(wxEVT_KEY_DOWN);
    event.SetEventObject(mapGrid);
    event.m_keyCode = key;
    event.SetControlDown(control);
    mapGrid->GetEventHandler()->ProcessEvent(event);
}

void DrivenFrame::click(const wxString& tooltip)
{
    wxWindow* const button = findByTooltip(*this, tooltip);
    wxCommandEvent event(wxEVT_BUTTON, button->GetId());
    event.SetEventObject(button);
    button->GetEventHandler()->ProcessEvent(event);
}

void DrivenFrame::filterBy(const wxString& text)
{
    filter->SetValue(text);
}

void DrivenFrame::showAllRegisters()
{
    while (driven.map.viewMode != ViewMode::All)
        press(WXK_SPACE);
}

void DrivenFrame::selectRows(int first, int last)
{
    mapGrid->ClearSelection();
    mapGrid->SelectBlock(first, 0, last, mapGrid->GetNumberCols() - 1);
}

FrameOnScreen::FrameOnScreen(const std::string& map)
{
    frame = new DrivenFrame(folder.input("plant.json", fullDatabaseJson()), folder.input("map.csv", map));
    auto* const part = frame->mapRows().GetGridWindow();
    const auto painted = std::make_shared<bool>(false);
    part->Bind(wxEVT_PAINT,
               [painted](wxPaintEvent& event)
               {
                   *painted = true;
                   event.Skip();
               });
    frame->Maximize();
    frame->Show();
    while (!*painted)
        handleEvents();
    frame->settleLayout();
    handleEvents();
}

FrameOnScreen::~FrameOnScreen()
{
    frame->Destroy();
    handleEvents();
    syncWithScreen(); // whatever is shown next must not find the window still there
}

RegistersCopy::RegistersCopy(const RegisterMap& map)
{
    for (const RegisterSpace space : allSpaces)
        spaces.push_back(std::make_unique<RegisterSlots>(map.slots(space)));
}

void RegistersCopy::restore(RegisterMap& map) const
{
    for (const RegisterSpace space : allSpaces)
        map.slots(space) = *spaces[static_cast<std::size_t>(space)];
}

void handleEvents()
{
    wxTheApp->Yield();
    wxTheApp->ProcessIdle();
}

void paintNow(wxWindow& window)
{
    window.Update();
    syncWithScreen();
}
