// Puts the main window together: the grids get their tables, the bars their buttons. The commands are in the other
// MainFrame files, by topic; the layout is in MainFrameBase.

#include "ui/MainFrame.h"

#include "ui/CommandTable.h"
#include "ui/Desktop.h"
#include "ui/ImageButton.h"
#include "ui/MessageBox.h"
#include "ui/NamedImages.h"
#include "ui/PanelControls.h"
#include "ui/SourceBrowser.h"
#include "ui/SpaceButtons.h"
#include "ui/ToolkitText.h"
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

/// Tells the user what is wrong with the tag database; says nothing when it was loaded.
void tellWhyNotLoaded(LoadResult result)
{
    // A start without the option is told so too: an editor without tags is rarely what was meant.
    if (result != LoadResult::Loaded)
        messageBox(toolkitText(loadMessage(result)), "Message");
}

} // namespace

MainFrame::MainFrame(Document& shownDocument, const wxString& suitePath, FileChooser fileChooser,
                     DocumentLoading* loading)
    : document(shownDocument), map(shownDocument.map), chooseFile(std::move(fileChooser)),
      documentationFolder(suitePath + documentationSubfolder), deviceAddress(TOLVANE_DEFAULT_DEVICE_ADDRESS),
      secondDeviceAddress(TOLVANE_DEFAULT_DEVICE_ADDRESS)
{
    // Nothing reads the two device addresses and the empty name; they belong to the state of the window all the same.
    SetIcons(namedIcon("icon_program"));
    // The grid owns its table; the table answers from the document, which outlives both.
    mapTable = new MapGridTable(map);
    panelControls::showTable(*mapGrid, mapTable);
    showWhileEmpty(*mapGrid, [] { return "Copy tags with Ctrl+C, paste here with Ctrl+V"; });
    // The browser knows the keys of its grid, but copying tags fills the clipboard of the map, which is here.
    sourceBrowser =
        new SourceBrowser(splitter, document.database, [this](const Command& command) { command.run(*this); });
    showSourcePanel(sourceBrowser);
    connectMenus();
    createButtons();
    showDocument(loading);
    desktop::darken(*this);
    Layout();
    startTimer();
}

void MainFrame::showDocument(DocumentLoading* loading)
{
    if (loading != nullptr)
        tellWhyNotLoaded(loading->waitForDatabase());
    // While another thread still reads the definition file.
    sourceBrowser->showDatabase();
    if (loading != nullptr)
        loading->finish();
    showSpaceButtons();
    // The list opens at its first row.
    refreshMapView(0);
}

void MainFrame::settleLayout()
{
    // The sash first: the room for the last columns depends on it. The halves are equal on any screen.
    splitter->SetSashPosition(splitter->GetSize().GetWidth() / 2);
    sourceBrowser->fitColumns();
    fitColumns();
    Layout();
    // The map is what is edited; its keys work from the first moment. Windows gives no keyboard to a hidden window.
    mapGrid->SetFocus();
}

void MainFrame::createButtons()
{
    createSpaceButtons();
    for (const Command& command : allCommands())
    {
        if (command.bar != ButtonBar::None)
            createButton(command);
    }
    // The copy button of the source side stands before the filter field, which was made earlier.
    sourceBrowser->orderTabStops();
}

void MainFrame::createSpaceButtons()
{
    mapButtonSizer->AddSpacer(FromDIP(wideGap));
    // The order on the screen is that of the button table; the array is by space, as everything else asks for it.
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
    // The command does not learn whether a button, an entry or a key has called it.
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
    // Gaps group what belongs together: spaces, view, moves, clipboard and what follows it.
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
