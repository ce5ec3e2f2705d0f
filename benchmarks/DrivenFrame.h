#pragma once

#include "benchmarks/ScratchFiles.h"
#include "map/Document.h"
#include "ui/MainFrame.h"

#include <filesystem>
#include <memory>

class wxGrid;
class wxTextCtrl;

/// The document of the driven window; a base class, so that it is still there when the window goes.
struct DrivenDocument
{
    DrivenDocument(const std::filesystem::path& database, const std::filesystem::path& definition);

    Document driven;
};

/// The main window on the full-size plant, driven as a user does: keys to the map grid, clicks on buttons, typing into
/// the filter.
class DrivenFrame : private DrivenDocument, public MainFrame
{
public:
    DrivenFrame(const std::filesystem::path& database, const std::filesystem::path& definition);

    wxGrid& mapRows() { return *mapGrid; }
    wxGrid& tagRows() { return *tagGrid; }

    /// Presses a key in the map grid.
    void press(int key);
    void pressControl(int key);

    /// Clicks the button that has this tooltip.
    void click(const wxString& tooltip);

    /// Puts a text into the filter field.
    void filterBy(const wxString& text);

    /// Toggles the view until the map grid shows every register.
    void showAllRegisters();

private:
    wxGrid* tagGrid;
    wxTextCtrl* filter;
};

/// Shows the main window on the plant's database and map, maximised and painted, and takes it away again.
class FrameOnScreen
{
public:
    FrameOnScreen();
    ~FrameOnScreen();
    FrameOnScreen(const FrameOnScreen&) = delete;
    FrameOnScreen& operator=(const FrameOnScreen&) = delete;

    DrivenFrame* operator->() { return frame; }
    DrivenFrame& operator*() { return *frame; }

private:
    ScratchFolder folder;
    DrivenFrame* frame = nullptr;
};

/// Handles what is waiting for the program, painting included.
void handleEvents();

/// Shows a frame over the whole screen and handles events until one of its windows has been painted.
void showMaximised(wxFrame& frame, wxWindow& part);

/// Paints what has changed in a window at once and waits until the screen has it.
void paintNow(wxWindow& window);
