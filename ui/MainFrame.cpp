#include "ui/MainFrame.h"

#include "ui/CommandTable.h"
#include "ui/ImageButton.h"
#include "ui/NamedImages.h"
#include "ui/PanelControls.h"
#include "ui/SourceBrowser.h"
#include "ui/SpaceButtons.h"
#include "ui/grid/EmptyGridHint.h"
#include "ui/grid/MapGridTable.h"

#include <wx/bmpbuttn.h>
#include <wx/grid.h>
#include <wx/sizer.h>
#include <wx/splitter.h>

namespace
{

/// Where the suite keeps its documents below its installation path, which ends in a separator of its own.
constexpr const char* documentationSubfolder = "varnokconfigure\\DOCUMENTATION";

/// Pixels between groups of buttons.
constexpr int wideGap = 20;
constexpr int narrowGap = 7;

} // namespace

MainFrame::MainFrame(Document& shownDocument, const wxString& suitePath, FileChooser fileChooser)
    : document(shownDocument), map(shownDocument.map), chooseFile(std::move(fileChooser)),
      documentationFolder(suitePath + documentationSubfolder), deviceAddress(TOLVANE_DEFAULT_DEVICE_ADDRESS),
      secondDeviceAddress(TOLVANE_DEFAULT_DEVICE_ADDRESS)
{
    SetIcons(namedIcon("icon_program"));
    // The grid owns its table; the table answers from the document, which outlives both.
    mapTable = new MapGridTable(map);
    panelControls::showTable(*mapGrid, mapTable);
    showWhileEmpty(*mapGrid, [] { return "Copy tags with Ctrl+C, paste here with Ctrl+V"; });
    sourceBrowser =
        new SourceBrowser(splitter, document.database, [this](const Command& command) { command.run(*this); });
    showSourcePanel(sourceBrowser);
    connectMenus();
    createButtons();
    Layout();
    refreshMapView(0);
    mapGrid->SetFocus();
}

void MainFrame::settleLayout()
{
    splitter->SetSashPosition(splitter->GetSize().GetWidth() / 2);
    sourceBrowser->fitColumns();
    fitColumns();
    Layout();
}

void MainFrame::createButtons()
{
    createSpaceButtons();
    for (const Command& command : allCommands())
    {
        if (command.bar != ButtonBar::None)
            createButton(command);
    }
    sourceBrowser->orderTabStops();
    showSpaceButtons();
}

void MainFrame::createSpaceButtons()
{
    mapButtonSizer->AddSpacer(FromDIP(wideGap));
    for (const auto& [space, image, tooltip] : spaceButtonOrder)
    {
        wxBitmapButton* const button = createImageButton(mapButtonSizer->GetContainingWindow(), image, tooltip, false);
        button->Bind(wxEVT_BUTTON, [this, shown = space](wxCommandEvent&) { selectSpace(shown); });
        mapButtonSizer->Add(button, 0, wxALIGN_CENTRE_VERTICAL);
        spaceButtons[static_cast<std::size_t>(space)] = button;
    }
}

void MainFrame::createButton(const Command& command)
{
    wxSizer& place = buttonPlace(command.bar);
    addGap(place, command);
    wxBitmapButton* const button = createImageButton(place.GetContainingWindow(), command.image, command.tooltip, true);
    button->Bind(wxEVT_BUTTON, [this, run = command.run](wxCommandEvent&) { run(*this); });
    place.Add(button, 0, wxALIGN_CENTRE_VERTICAL);
}

wxSizer& MainFrame::buttonPlace(ButtonBar bar) const
{
    switch (bar)
    {
    case ButtonBar::Global:
        return *topBarSizer;
    case ButtonBar::Database:
        return sourceBrowser->buttonPlace();
    default:
        return *mapButtonSizer;
    }
}

void MainFrame::addGap(wxSizer& sizer, const Command& command) const
{
    switch (command.gap)
    {
    case ButtonGap::None:
        break;
    case ButtonGap::Narrow:
        sizer.AddSpacer(FromDIP(narrowGap));
        break;
    case ButtonGap::Wide:
        sizer.AddSpacer(FromDIP(wideGap));
        break;
    case ButtonGap::Stretch:
        sizer.AddStretchSpacer();
        break;
    }
}
