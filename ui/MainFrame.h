#pragma once

#include "map/DefaultByteOrder.h"
#include "map/RegisterMap.h"
#include "map/RegisterMoves.h"
#include "source/TagDatabase.h"
#include "ui/FileChooser.h"
#include "ui/MainFrameBase.h"
#include "ui/SourceBrowser.h"
#include "ui/StartupValues.h"

#include <array>
#include <memory>
#include <vector>

class MapGridTable;
class wxBitmapButton;

/// The main window: owns the document and the tag database, binds every control to a command.
///
/// Each command reads the selection, calls one operation of the model, shows the message that its result asks for and
/// brings the view up to date; no rule is kept here.
class MainFrame : public MainFrameBase
{
public:
    /// Does the whole start-up: finds the installation, loads both files, shows the map.
    /// @param findInstallation  where it finds none, an alert is shown and the program ends with exit code 0
    MainFrame(const StartupValues& startup, const InstallationLookup& findInstallation);

    ~MainFrame() override;

    /// Puts the sash in the middle and gives the last columns their room; to be called once the window is shown.
    void settleLayout();

    /// The document, for tests that change it as commands would.
    RegisterMap& registerMap() { return map; }

    /// Puts another way of choosing files in place of the desktop's dialog.
    void setFileChooser(FileChooser chooser) { chooseFile = std::move(chooser); }

protected:
    void OnSourceTreeSelChanged(wxTreeEvent& event) override;
    void OnSourceTreeLeftUp(wxMouseEvent& event) override;
    void OnSourceFilterChanged(wxCommandEvent& event) override;
    void OnSourceGridKeyDown(wxKeyEvent& event) override;
    void OnSourceGridRightDown(wxMouseEvent& event) override;
    void OnMapGridCellDClick(wxGridEvent& event) override;
    void OnMapGridKeyDown(wxKeyEvent& event) override;
    void OnMapGridRightDown(wxMouseEvent& event) override;
    void OnTimer(wxTimerEvent& event) override;

private:
    using Command = void (MainFrame::*)();

    // Start-up, in this order.
    void findSuite(const InstallationLookup& findInstallation);
    void loadDatabase(const wxString& path);
    void loadMap();
    void createSourceBrowser();
    void connectMenus();
    void createButtons();
    void createGlobalButtons();
    void createSpaceButtons();
    void createMapButtons();
    void addButton(wxWindow* parent, wxSizer& sizer, const wxString& name, const wxString& tooltip, Command command);

    // The view.
    void refreshMapView(int scrollAddress);
    void refreshRows(const std::vector<int>& addresses);
    void selectSpace(RegisterSpace space);
    void showSpaceButtons();
    void toggleView();
    void refreshStatus();
    std::vector<int> selectedAddresses() const;
    std::vector<int> collectSelection() const;
    void reselectAddresses(std::vector<int> addresses);

    // Editing commands.
    void copySourceTags();
    void copyRegisters();
    void cutRegisters();
    void pasteRegisters();
    void appendRegisters();
    void deleteRegisters();
    void moveRegisters(bool shoving, MoveDirection direction);
    void moveUp() { moveRegisters(false, MoveDirection::Up); }
    void moveDown() { moveRegisters(false, MoveDirection::Down); }
    void shoveUp() { moveRegisters(true, MoveDirection::Up); }
    void shoveDown() { moveRegisters(true, MoveDirection::Down); }
    void compressRegisters();
    void toggleLocks();
    void deleteErrorRegisters();
    void replaceInTagnames();
    void editRegister();
    void showMapContextMenu(wxMouseEvent& event);

    // Commands about the whole program.
    void exportMap();
    void editSettings();
    void showAbout();
    void showHelp();
    void exitAndSave();
    bool saveDefinition();

    RegisterMap map;
    TagDatabase database;
    DefaultByteOrder defaultByteOrder;
    wxString definitionPath;
    wxString installationPath;
    wxString documentationFolder;
    wxString deviceAddress;
    wxString secondDeviceAddress;
    wxString deviceName;
    FileChooser chooseFile = chooseFileWithDialog;

    MapGridTable* mapTable = nullptr;
    std::unique_ptr<SourceBrowser> sourceBrowser;
    std::array<wxBitmapButton*, spaceCount> spaceButtons{};
    bool refreshing = false;
};
