#include "benchmarks/DrivenFrame.h"

#include "benchmarks/FullSize.h"
#include "tests/ui/ControlsBelow.h"
#include "ui/SourceBrowser.h"

#include <gdk/gdk.h>
#include <wx/app.h>
#include <wx/grid.h>
#include <wx/textctrl.h>

#include <memory>

LoadedPlant::LoadedPlant(const std::string& definition)
    : document(folder.input("plant.json", fullDatabaseJson()), folder.input("map.csv", definition), 0)
{
    document.loadDatabase();
    document.loadDefinition();
}

DrivenFrame::DrivenFrame(const std::string& definition)
    : LoadedPlant(definition), MainFrame(LoadedPlant::document, "/suite/"),
      tagGrid(firstBelow<wxGrid>(*firstBelow<SourceBrowser>(*this))), filter(firstBelow<wxTextCtrl>(*this))
{
}

void DrivenFrame::press(int key)
{
    wxKeyEvent event(wxEVT_KEY_DOWN);
    event.SetEventObject(mapGrid);
    event.m_keyCode = key;
    mapGrid->GetEventHandler()->ProcessEvent(event);
}

void DrivenFrame::filterBy(const wxString& text)
{
    filter->SetValue(text);
}

void DrivenFrame::showAllRegisters()
{
    while (registers().viewMode != ViewMode::All)
        toggleView();
}

void DrivenFrame::selectRows(int first, int last)
{
    mapGrid->ClearSelection();
    mapGrid->SelectBlock(first, 0, last, mapGrid->GetNumberCols() - 1);
}

FrameOnScreen::FrameOnScreen(const std::string& definition) : frame(new DrivenFrame(definition))
{
    const auto painted = std::make_shared<bool>(false);
    frame->mapRows().GetGridWindow()->Bind(wxEVT_PAINT,
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
    // Whatever is shown next must not find the window still there.
    gdk_display_sync(gdk_display_get_default());
}

void handleEvents()
{
    wxTheApp->Yield();
    wxTheApp->ProcessIdle();
}

void paintNow(wxWindow& window)
{
    window.Update();
    gdk_display_sync(gdk_display_get_default());
}
