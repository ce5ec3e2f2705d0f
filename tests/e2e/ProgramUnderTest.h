#pragma once

#include "tests/e2e/Control.h"
#include "tests/e2e/GridOnScreen.h"
#include "tests/e2e/PrivateScreen.h"
#include "tests/e2e/Process.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// Whether the program finds the suite's key file.
enum class Installation
{
    Present,
    Missing
};

/// The program, running, with what a person sees of it and does to it.
///
/// Whatever has to come is waited for; when it does not, std::runtime_error says what was missing.
class ProgramUnderTest
{
public:
    /// Starts it with a home and settings of its own.
    /// @param home  an existing folder that takes them
    ProgramUnderTest(PrivateScreen& screen, const std::filesystem::path& home,
                     const std::vector<std::string>& arguments, Installation installation = Installation::Present);

    /// Waits until the main window is there, laid out, and has counted its errors for the first time.
    void waitForMainWindow();

    /// Whether the main window is shown at this moment.
    bool showsMainWindow() const;

    /// Waits for a window or dialog that has the keyboard.
    /// @param title  its whole title; that of a message box is not known on the accessibility bus
    Control waitForWindow(const std::string& title);

    /// Waits for a message box that has the keyboard.
    /// @param text   the whole of what it says
    /// @param title  as the window manager shows it
    Control waitForMessage(const std::string& text, const std::string& title = "Message");

    /// Waits until no window with that title is shown.
    void waitUntilClosed(const std::string& title);

    /// Clicks a button of a window.
    /// @param name  its text
    void clickButton(const Control& window, const std::string& name);

    /// Clicks a picture button of the main window.
    /// @param tooltip  the first one that has it, from left to right, is meant
    void clickTool(const std::string& tooltip);

    /// Opens the pop-up menu of a grid's row and clicks one of its entries.
    void chooseFromMenu(GridOnScreen grid, int row, const std::string& entry);

    /// Waits until a label says something: the status line, the view mode, the hint of a dialog.
    /// @param text  the whole of it
    void waitForText(const std::string& text);

    /// Where the first control is that has this text or this tooltip.
    Rectangle placeOf(const std::string& textOrTooltip);

    GridOnScreen tagGrid();
    GridOnScreen mapGrid();

    /// Replaces what is in the text field for the filter.
    void typeFilter(const std::string& text);

    /// Replaces what is in a text field of a dialog.
    /// @param label  what stands to the left of the field
    void typeInto(const Control& dialog, const std::string& label, const std::string& text);

    /// Clicks the check box of a dialog that has no text of its own.
    /// @param label  what stands to the left of it
    void tick(const Control& dialog, const std::string& label);

    /// Clicks a file in the list of a dialog for choosing files, and opens it.
    /// @param name  without its folder
    void openListed(const Control& chooser, const std::string& name);

    /// Sends it a signal.
    void sendSignal(int signal) const;

    /// Breaks its connection to the screen, as it breaks when the screen's server goes.
    void cutOffFromScreen();

    /// Waits until it has ended.
    /// @return its exit code; 128 and the signal's number when a signal has ended it
    int waitForExit();

    /// What it has written to stderr so far.
    std::string errorOutput() const;

private:
    std::optional<Control> activeWindow() const;
    Control waitForControl(const std::string& what, const Control::Test& fits);
    void click(const Control& control);
    void typeInto(const Control& field, const std::string& text);
    GridOnScreen gridBelow(const std::string& columnTitle);

    PrivateScreen& screen;
    std::filesystem::path errorFile;
    Process process;
    std::shared_ptr<AccessibilityBus> bus;
};
