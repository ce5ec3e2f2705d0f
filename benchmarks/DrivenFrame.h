#pragma once

#include "benchmarks/ScratchFiles.h"
#include "map/Document.h"
#include "ui/MainFrame.h"

#include <filesystem>
#include <memory>
#include <string>

class wxGrid;
class wxTextCtrl;

/// The document of the driven window; a base class, so that it is still there when the window goes.
struct DrivenDocument
{
    DrivenDocument(const std::filesystem::path& database, const std::filesystem::path& definition);

    Document driven;
};

/// The main window, driven as a user does: keys to the map grid, clicks on buttons, typing into the filter.
class DrivenFrame : private DrivenDocument, public MainFrame
{
public:
    DrivenFrame(const std::filesystem::path& database, const std::filesystem::path& definition);

    wxGrid& mapRows() { return *mapGrid; }
    wxGrid& tagRows() { return *tagGrid; }
    RegisterMap& registers() { return driven.map; }

    /// Presses a key in the map grid.
    void press(int key, bool control = false);

    /// Clicks the button that has this tooltip.
    void click(const wxString& tooltip);

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

/// Shows the main window on the plant of the largest size, maximised and painted, and takes it away again.
class FrameOnScreen
{
public:
    /// @param map  text of the definition file
    explicit FrameOnScreen(const std::string& map);
    ~FrameOnScreen();
    FrameOnScreen(const FrameOnScreen&) = delete;
    FrameOnScreen& operator=(const FrameOnScreen&) = delete;

    DrivenFrame* operator->() { return frame; }
    DrivenFrame& operator*() { return *frame; }

private:
    ScratchFolder folder;
    DrivenFrame* frame = nullptr;
};

/// A copy of all registers, to go back to between two measurements.
class RegistersCopy
{
public:
    explicit RegistersCopy(const RegisterMap& map);
    void restore(RegisterMap& map) const;

private:
    std::vector<std::unique_ptr<RegisterSlots>> spaces;
};

/// Handles what is waiting for the program, painting included.
void handleEvents();

/// Paints what has changed in a window at once and waits until the screen has it.
void paintNow(wxWindow& window);
