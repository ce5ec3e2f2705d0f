#include "benchmarks/DrivenFrame.h"

#include "benchmarks/FullSize.h"
#include "benchmarks/Screen.h"
#include "map/DefinitionFile.h"
#include "ui/MainFrame.h"
#include "ui/OpenDocument.h"

#include <wx/app.h>
#include <wx/bmpbuttn.h>
#include <wx/grid.h>
#include <wx/textctrl.h>

namespace
{

wxWindow* findByTooltip(wxWindow& parent, const wxString& tooltip)
{
    for (wxWindow* const child : parent.GetChildren())
    {
        if (child->GetToolTipText() == tooltip)
            return child;
        if (wxWindow* const found = findByTooltip(*child, tooltip))
            return found;
    }
    return nullptr;
}

/// The first grid below a window other than the one given.
wxGrid* findOtherGrid(const wxWindow& window, const wxGrid& known)
{
    for (wxWindow* const child : window.GetChildren())
    {
        auto* const grid = dynamic_cast<wxGrid*>(child);
        if (grid && grid != &known)
            return grid;
        if (wxGrid* const found = findOtherGrid(*child, known))
            return found;
    }
    return nullptr;
}

void sendKey(wxWindow& window, int key, bool control)
{
    wxKeyEvent event(wxEVT_KEY_DOWN);
    event.SetEventObject(&window);
    event.m_keyCode = key;
    event.SetControlDown(control);
    window.GetEventHandler()->ProcessEvent(event);
}

} // namespace

DrivenDocument::DrivenDocument(const std::filesystem::path& database, const std::filesystem::path& definition)
    : driven(database, definition, 0)
{
    openDocument(driven);
}

DrivenFrame::DrivenFrame(const std::filesystem::path& database, const std::filesystem::path& definition)
    : DrivenDocument(database, definition), MainFrame(driven, "/suite/"), tagGrid(findOtherGrid(*this, *mapGrid)),
      filter(dynamic_cast<wxTextCtrl*>(findByTooltip(*this, "Tagname and Description filter")))
{
}

void DrivenFrame::press(int key)
{
    sendKey(*mapGrid, key, false);
}

void DrivenFrame::pressControl(int key)
{
    sendKey(*mapGrid, key, true);
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

FrameOnScreen::FrameOnScreen()
{
    const auto database = folder.file("plant.json");
    const auto definition = folder.file("map.csv");
    writeInput(database, fullDatabaseJson());
    RegisterMap map;
    fillWithObjects(map);
    writeInput(definition, definitionText(map));

    frame = new DrivenFrame(database, definition);
    showMaximised(*frame, *frame->mapRows().GetGridWindow());
    frame->settleLayout();
    handleEvents();
}

FrameOnScreen::~FrameOnScreen()
{
    frame->Destroy();
    handleEvents();
}

void handleEvents()
{
    wxTheApp->Yield();
    wxTheApp->ProcessIdle();
}

void showMaximised(wxFrame& frame, wxWindow& part)
{
    const auto painted = std::make_shared<bool>(false);
    part.Bind(wxEVT_PAINT,
              [painted](wxPaintEvent& event)
              {
                  *painted = true;
                  event.Skip();
              });
    frame.Maximize();
    frame.Show();
    while (!*painted)
        handleEvents();
}

void paintNow(wxWindow& window)
{
    window.Update();
    syncWithScreen();
}
