#pragma once

#include "map/Document.h"
#include "map/DocumentLoading.h"
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
    /// The controls are made first; only then is the document waited for, and the user told what is wrong with it.
    /// @param shownDocument  loaded or being loaded; outlives the window
    /// @param suitePath      the suite's installation path as stored, which ends in a separator of its own
    /// @param fileChooser    how the user is asked for a file
    /// @param loading        what loads the document; none when it is loaded already
    MainFrame(Document& shownDocument, const wxString& suitePath, FileChooser fileChooser = chooseFileWithDialog,
              DocumentLoading* loading = nullptr);

    /// Puts the sash in the middle, gives the last columns their room and the map the keyboard; to be called once the
    /// window is shown.
    void settleLayout();

    // Commands on the selected registers; each does nothing while none is selected.

    /// Copies the selected objects into the program's clipboard.
    void copyRegisters();

    /// Copies the selected objects and frees the registers of those that are not locked.
    void cutRegisters();

    /// Inserts the clipboard in front of the selected object, or at address 0 of an empty list; says so when there is
    /// no room for it.
    void pasteRegisters();

    /// Inserts the clipboard at the first free register from the selected row on, or at address 0 of an empty list.
    void appendRegisters();

    /// Frees the registers of the selected objects that are not locked, without a question.
    void deleteRegisters();

    /// Moves the selected objects by one register and leaves them selected.
    /// @param shoving  neighbours in the way are pushed along
    void moveRegisters(bool shoving, MoveDirection direction);

    /// Closes the gaps between the first and the last selected register; says so when a lock stands against it.
    void compressRegisters();

    /// Locks what is not locked and unlocks what is, and leaves it selected.
    void toggleLocks();

    /// Asks for a text and another one to put in its place in the tagnames of the selected rows.
    void replaceInTagnames();

    /// Lets the user edit the object of the one selected row; does nothing for a locked one and for several rows.
    void editRegister();

    /// Selects every row of the map grid.
    void selectAllRegisters();

    // Commands on the tag grid.

    /// Makes objects of the selected tags and puts them into the clipboard, which is empty when none is selected.
    void copySourceTags();

    /// Selects every tag that is listed.
    void selectAllTags();

    // Commands on the view and on the whole map.

    /// Shows another space from its first row on.
    void selectSpace(RegisterSpace space);

    /// Goes on to the next of the three views.
    void toggleView();

    /// Writes the name of the view where it is told.
    void showViewMode();

    /// Deletes, once the user has agreed, what validation has marked as wrong in all four spaces.
    void deleteErrorRegisters();

    // Commands about the whole program.

    /// Asks for a file and writes the map into it, as a table or as a report by the ending of its name.
    void exportMap();

    /// Lets the user choose the byte order that objects made of tags start with.
    void editSettings();

    /// Shows name, version and purpose of the program.
    void showAbout();

    /// Asks for a document of the suite and opens it in the desktop's viewer.
    void showHelp();

    /// Leaves the program, and saves a changed map before when the user wants it; stays when there is no answer.
    void exitAndSave();

protected:
    void OnMapGridCellDClick(wxGridEvent& event) override;
    void OnMapGridKeyDown(wxKeyEvent& event) override;
    void OnMapGridRightDown(wxMouseEvent& event) override;
    void OnMapGridContextMenu(wxContextMenuEvent& event) override;
    void OnTimer(wxTimerEvent& event) override;

private:
    void showDocument(DocumentLoading* loading);
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
