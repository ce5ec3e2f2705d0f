#include "ui/MainFrame.h"

#include "map/DefinitionFile.h"
#include "map/Validation.h"
#include "source/TagDatabaseLoader.h"
#include "ui/ImageButton.h"
#include "ui/NamedImages.h"
#include "ui/Paths.h"
#include "ui/SpaceButtons.h"
#include "ui/Theme.h"
#include "ui/ToolkitText.h"
#include "ui/grid/MapGridTable.h"
#include "ui/grid/TagGridTable.h"

#include <wx/grid.h>
#include <wx/msgdlg.h>
#include <wx/scrolwin.h>
#include <wx/sizer.h>
#include <wx/splitter.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>

#include <cstdlib>

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

MainFrame::MainFrame(const StartupValues& startup, const InstallationLookup& findInstallation)
    : definitionPath(startup.definitionPath)
{
    SetIcons(namedIcon("icon_program"));
    findSuite(findInstallation);
    defaultByteOrder = DefaultByteOrder::fromSwapFlags(startup.swapFlags);
    deviceAddress = TOLVANE_DEFAULT_DEVICE_ADDRESS;
    secondDeviceAddress = TOLVANE_DEFAULT_DEVICE_ADDRESS;
    map.initialise();
    mapTable = new MapGridTable(map);
    showTable(*mapGrid, mapTable);
    createSourceBrowser();
    loadDatabase(startup.databasePath);
    loadMap();
    connectMenus();
    createButtons();
    Layout();
    refreshMapView(-1);
    mapGrid->SetFocus();
}

MainFrame::~MainFrame()
{
    // The grids answer from the data of this object until they are gone, even while they lose the keyboard focus.
    DestroyChildren();
}

void MainFrame::findSuite(const InstallationLookup& findInstallation)
{
    const std::optional<wxString> found = findInstallation();
    if (!found)
    {
        wxMessageBox("Cannot locate registry entries required by this program\n\n"
                     "This program cannot continue and will now terminate",
                     "Alert - Program cannot continue", wxOK | wxICON_ERROR);
        std::exit(EXIT_SUCCESS);
    }
    installationPath = *found;
    documentationFolder = installationPath + documentationSubfolder;
}

void MainFrame::createSourceBrowser()
{
    auto* const table = new TagGridTable(database);
    showTable(*sourceGrid, table);
    const SourceBrowser::GroupLook groupLook{theme::colour(theme::groupFlag), theme::colour(theme::groupDescription),
                                             theme::colour(theme::contentBackground)};
    sourceBrowser = std::make_unique<SourceBrowser>(
        SourceBrowser::Controls{*sourceTree, *sourceGrid, *sourceFilter, *groupFilters, *groupFilterSizer, groupLook},
        database, *table);
}

void MainFrame::loadDatabase(const wxString& path)
{
    const LoadResult result = loadTagDatabase(toPath(path), database);
    sourceBrowser->showDatabase();
    if (result != LoadResult::Loaded)
        wxMessageBox(toolkitText(loadMessage(result)), "Message", wxOK);
}

void MainFrame::loadMap()
{
    if (loadDefinitionFile(toPath(definitionPath), map, database.tags))
    {
        validateMap(map, database.tags);
        refreshMapView(0);
    }
    map.takeSnapshot();
}

void MainFrame::settleLayout()
{
    splitter->SetSashPosition(splitter->GetSize().GetWidth() / 2);
    fitColumns();
    Layout();
}

void MainFrame::addButton(wxWindow* parent, wxSizer& sizer, const wxString& name, const wxString& tooltip,
                          Command command)
{
    wxBitmapButton* const button = createImageButton(parent, name, tooltip, true);
    button->Bind(wxEVT_BUTTON, [this, command](wxCommandEvent&) { (this->*command)(); });
    sizer.Add(button, 0, wxALIGN_CENTRE_VERTICAL | wxALL, FromDIP(buttonBorder));
}

void MainFrame::createButtons()
{
    createGlobalButtons();
    addButton(databaseHeader, *copyButtonSizer, "png_tool_copy", "Copy - ctrl c", &MainFrame::copySourceTags);
    createSpaceButtons();
    createMapButtons();
    showSpaceButtons();
}

void MainFrame::createGlobalButtons()
{
    const auto add = [this](const wxString& name, const wxString& tooltip, Command command)
    { addButton(topBar, *topBarSizer, name, tooltip, command); };
    add("png_tool_export", "Export map to text file", &MainFrame::exportMap);
    add("png_tool_settings", "Settings and Defaults", &MainFrame::editSettings);
    topBarSizer->AddStretchSpacer();
    add("png_tool_about", "About", &MainFrame::showAbout);
    add("png_tool_help", "Help", &MainFrame::showHelp);
    add("png_tool_exit", "Exit without saving", &MainFrame::exitAndSave);
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
    mapButtonSizer->AddStretchSpacer();
}

void MainFrame::createMapButtons()
{
    const auto add = [this](const wxString& name, const wxString& tooltip, Command command)
    { addButton(mapHeader, *mapButtonSizer, name, tooltip, command); };
    add("png_tool_view", "Toggle view", &MainFrame::toggleView);
    add("png_tool_correct", "Delete registers with errors", &MainFrame::deleteErrorRegisters);
    mapButtonSizer->AddSpacer(FromDIP(narrowGap));
    add("png_tool_movedown", "Move registers down", &MainFrame::moveDown);
    add("png_tool_moveup", "Move registers up", &MainFrame::moveUp);
    add("png_tool_shovedown", "Shove registers down", &MainFrame::shoveDown);
    add("png_tool_shoveup", "Shove registers up", &MainFrame::shoveUp);
    mapButtonSizer->AddSpacer(FromDIP(wideGap));
    add("png_tool_cut", "Cut - ctrl x", &MainFrame::cutRegisters);
    add("png_tool_copy", "Copy - ctrl c", &MainFrame::copyRegisters);
    add("png_tool_paste", "Paste - ctrl v", &MainFrame::pasteRegisters);
    add("png_tool_append", "Append to block", &MainFrame::appendRegisters);
    add("png_tool_compress", "Compress registers into contiguous block", &MainFrame::compressRegisters);
    add("png_tool_delete", "Delete - del", &MainFrame::deleteRegisters);
    add("png_tool_edit", "Edit", &MainFrame::editRegister);
    add("png_tool_replace", "Tagname search and replace", &MainFrame::replaceInTagnames);
    add("png_tool_lock_toggle", "Toggle register lock", &MainFrame::toggleLocks);
}
