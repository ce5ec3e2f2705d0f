#pragma once

#include "tests/core/Chance.h"
#include "ui/MainFrame.h"

struct Command;
class SourceBrowser;
class wxButton;
class wxCheckBox;
class wxTextCtrl;
class wxTreeCtrl;

/// The main window, worked without mouse and keyboard: every event that they would have made is handed to the control
/// that would have got it.
class WorkedFrame : public MainFrame
{
public:
    /// @param shownDocument  loaded; outlives the window
    WorkedFrame(Document& shownDocument, FileChooser fileChooser);

    wxGrid& mapRows() const { return *mapGrid; }
    wxGrid& tagRows() const { return *tagGrid; }
    wxTextCtrl& filterField() const { return *filter; }
    wxTreeCtrl& structureTree() const { return *tree; }

    /// The text that tells the number of errors.
    wxString statusText() const;

    /// Lets the status line look at the map, as it does every second.
    void tick();

    /// Gives a command by one of its ways in: key, menu entry or button.
    void give(const Command& command, Chance& chance);

    /// Presses a key in a grid.
    static void press(wxGrid& grid, int key, bool controlDown);

    /// Presses the button with that tooltip on the map's side or in the top bar.
    void pressMapButton(const wxString& tooltip);

    /// Double-clicks a row of the map grid.
    void doubleClick(int row);

    /// Ticks or unticks a group; does nothing when the database has none.
    void tickSomeGroup(Chance& chance);

private:
    void pressButtonBelow(const wxWindow& side, const wxString& tooltip);

    SourceBrowser* sourceSide;
    wxGrid* tagGrid;
    wxTextCtrl* filter;
    wxTreeCtrl* tree;
};

/// Handles what is waiting for the program, painting and windows that are to go included.
void handleEvents();

/// Presses a button that may be in any window.
void pressButton(wxButton& button);
