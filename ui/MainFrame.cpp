#include "ui/MainFrame.h"

#include "ui/CommandTable.h"
#include "ui/ImageButton.h"
#include "ui/NamedImages.h"
#include "ui/SpaceButtons.h"
#include "ui/Theme.h"
#include "ui/grid/MapGridTable.h"
#include "ui/grid/TagGridTable.h"

#include <wx/bmpbuttn.h>
#include <wx/grid.h>
#include <wx/scrolwin.h>
#include <wx/sizer.h>
#include <wx/splitter.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>

namespace
{

/// Where the suite keeps its documents below its installation path, which ends in a separator of its own.
constexpr const char* documentationSubfolder = "varnokconfigure\\DOCUMENTATION";

/// Pixels between groups of buttons.
constexpr int wideGap = 20;
constexpr int narrowGap = 7;

/// Pixels around a button.
constexpr int buttonBorder = 3;

} // namespace

MainFrame::MainFrame(Document& shownDocument, const wxString& suitePath, FileChooser fileChooser)
    : document(shownDocument), map(shownDocument.map), chooseFile(std::move(fileChooser)),
      documentationFolder(suitePath + documentationSubfolder), deviceAddress(TOLVANE_DEFAULT_DEVICE_ADDRESS),
      secondDeviceAddress(TOLVANE_DEFAULT_DEVICE_ADDRESS)
{
    SetIcons(namedIcon("icon_program"));
    mapTable = new MapGridTable(map);
    showTable(*mapGrid, mapTable);
    createSourceBrowser();
    sourceBrowser->showDatabase();
    connectMenus();
    createButtons();
    Layout();
    refreshMapView(0);
    mapGrid->SetFocus();
}

void MainFrame::createSourceBrowser()
{
    auto* const table = new TagGridTable(document.database);
    showTable(*sourceGrid, table);
    const SourceBrowser::GroupLook groupLook{theme::colour(theme::groupFlag), theme::colour(theme::groupDescription),
                                             theme::colour(theme::contentBackground)};
    sourceBrowser = std::make_unique<SourceBrowser>(
        SourceBrowser::Controls{*sourceTree, *sourceGrid, *sourceFilter, *groupFilters, *groupFilterSizer, groupLook},
        document.database, *table);
}

void MainFrame::settleLayout()
{
    splitter->SetSashPosition(splitter->GetSize().GetWidth() / 2);
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
    showSpaceButtons();
}

void MainFrame::createSpaceButtons()
{
    mapButtonSizer->AddSpacer(FromDIP(wideGap));
    for (const auto& [space, image, tooltip] : spaceButtonOrder)
    {
        wxBitmapButton* const button = createImageButton(mapHeader, image, tooltip, false);
        button->Bind(wxEVT_BUTTON, [this, shown = space](wxCommandEvent&) { selectSpace(shown); });
        mapButtonSizer->Add(button, 0, wxALIGN_CENTRE_VERTICAL | wxALL, FromDIP(buttonBorder));
        spaceButtons[static_cast<std::size_t>(space)] = button;
    }
}

void MainFrame::createButton(const Command& command)
{
    const bool global = command.bar == ButtonBar::Global;
    wxWindow* const parent = global ? topBar : command.bar == ButtonBar::Database ? databaseHeader : mapHeader;
    wxBoxSizer* const sizer = global                               ? topBarSizer
                              : command.bar == ButtonBar::Database ? copyButtonSizer
                                                                   : mapButtonSizer;
    addGap(*sizer, command);
    wxBitmapButton* const button = createImageButton(parent, command.image, command.tooltip, true);
    button->Bind(wxEVT_BUTTON, [this, run = command.run](wxCommandEvent&) { run(*this); });
    sizer->Add(button, 0, wxALIGN_CENTRE_VERTICAL | wxALL, FromDIP(buttonBorder));
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
