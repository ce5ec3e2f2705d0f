#pragma once

#include "map/Document.h"
#include "map/RegisterMoves.h"
#include "ui/FileChooser.h"
#include "ui/MainFrameBase.h"

#include <array>
#include <optional>
#include <vector>

class MapGridTable;
class SourceBrowser;
struct Command;
enum class ButtonBar;
class wxBitmapButton;

/// The main window: shows a document and runs the commands on it.
///
/// Each command reads the selection, calls one operation of the model, shows the message that its result asks for and
/// brings the view up to date; no rule is kept here. Which buttons, menu entries and keys run a command is written down
/// in the table of commands.
class MainFrame : public MainFrameBase
{
public:
    /// @param shownDocument  loaded; outlives the window
    /// @param suitePath      the suite's installation path as stored, which ends in a separator of its own
    /// @param fileChooser    how the user is asked for a file
    MainFrame(Document& shownDocument, const wxString& suitePath, FileChooser fileChooser = chooseFileWithDialog);

    /// Puts the sash in the middle and gives the last columns their room; to be called once the window is shown.
    void settleLayout();

    // Commands on the selected registers.
    void copyRegisters();
    void cutRegisters();
    void pasteRegisters();
    void appendRegisters();
    void deleteRegisters();
    void moveRegisters(bool shoving, MoveDirection direction);
    void compressRegisters();
    void toggleLocks();
    void replaceInTagnames();
    void editRegister();
    void selectAllRegisters();

    // Commands on the tag grid.
    void copySourceTags();
    void selectAllTags();

    // Commands on the view and on the whole map.
    void selectSpace(RegisterSpace space);
    void toggleView();
    void showViewMode();
    void deleteErrorRegisters();

    // Commands about the whole program.
    void exportMap();
    void editSettings();
    void showAbout();
    void showHelp();
    void exitAndSave();

protected:
    void OnMapGridCellDClick(wxGridEvent& event) override;
    void OnMapGridKeyDown(wxKeyEvent& event) override;
    void OnMapGridRightDown(wxMouseEvent& event) override;
    void OnMapGridContextMenu(wxContextMenuEvent& event) override;
    void OnTimer(wxTimerEvent& event) override;

private:
    void connectMenus();
    void createButtons();
    void createSpaceButtons();
    void createButton(const Command& command);
    wxSizer& buttonPlace(ButtonBar bar) const;
    void addGap(wxSizer& sizer, const Command& command) const;

    void refreshMapView(int scrollAddress);
    void refreshRows(const std::vector<int>& addresses);
    void showSpaceButtons();
    void refreshStatus();
    std::vector<int> selectedAddresses() const;
    std::vector<int> collectSelection() const;
    void reselectAddresses(std::vector<int> addresses);
    void followMove(MoveDirection direction);
    void showMapContextMenu(wxMouseEvent& event);
    bool saveDefinition();

    Document& document;
    RegisterMap& map;
    FileChooser chooseFile;
    wxString documentationFolder;

    // Part of the state of this window, which nothing in the program reads.
    wxString deviceAddress;
    wxString secondDeviceAddress;
    wxString deviceName;

    MapGridTable* mapTable = nullptr;
    SourceBrowser* sourceBrowser = nullptr;
    std::array<wxBitmapButton*, spaceCount> spaceButtons{};
    std::optional<int> shownErrorCount; ///< what the status line tells; nothing before the timer's first tick
    bool refreshing = false;
};
