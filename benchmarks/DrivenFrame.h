#pragma once

#include "benchmarks/ScratchFolder.h"
#include "map/Document.h"
#include "ui/MainFrame.h"

#include <string>
#include <vector>

class wxGrid;
class wxTextCtrl;

/// The plant of the largest size, loaded. A base class of the window, so that it is there before it and after it.
struct LoadedPlant
{
    /// @param definition  text of the definition file
    explicit LoadedPlant(const std::string& definition);

    ScratchFolder folder;
    Document document;
};

/// The main window on that plant. Its commands are run as the table of commands runs them.
class DrivenFrame : private LoadedPlant, public MainFrame
{
public:
    /// @param definition  text of the definition file
    explicit DrivenFrame(const std::string& definition);

    wxGrid& mapRows() { return *mapGrid; }
    wxGrid& tagRows() { return *tagGrid; }
    RegisterMap& registers() { return LoadedPlant::document.map; }

    /// Presses a key in the map grid.
    void press(int key);

    /// Puts a text into the filter field.
    void filterBy(const wxString& text);

    /// Toggles the view until the map grid shows every register.
    void showAllRegisters();

    /// Selects rows of the map grid, and those alone.
    void selectRows(int first, int last);

private:
    wxGrid* tagGrid;
    wxTextCtrl* filter;
};

/// Shows the main window maximised and painted, and takes it away again.
class FrameOnScreen
{
public:
    /// @param definition  text of the definition file
    explicit FrameOnScreen(const std::string& definition);
    ~FrameOnScreen();
    FrameOnScreen(const FrameOnScreen&) = delete;
    FrameOnScreen& operator=(const FrameOnScreen&) = delete;

    DrivenFrame* operator->() { return frame; }
    DrivenFrame& operator*() { return *frame; }

private:
    DrivenFrame* frame;
};

/// Handles what is waiting for the program, painting included.
void handleEvents();

/// Paints what has changed in a window at once and waits until the screen has it.
void paintNow(wxWindow& window);
