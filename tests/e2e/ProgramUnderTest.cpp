#include "tests/e2e/ProgramUnderTest.h"

#include "tests/e2e/AccessibilityBus.h"
#include "tests/e2e/Patience.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>

namespace fs = std::filesystem;

namespace
{

constexpr const char* mainTitle = "Modbus Map Editor";

/// How often in a row a control has to be found at the same place until it counts as laid out.
constexpr int steadyReadings = 5;

/// The settings that keep the program away from the user's own; the key file is put there first if it is wanted.
std::map<std::string, std::string> environmentIn(const fs::path& home, Installation installation)
{
    const fs::path system = home / "system";
    fs::create_directories(system);
    if (installation == Installation::Present)
    {
        fs::create_directories(system / "BELTHORNE LTD");
        std::ofstream(system / "BELTHORNE LTD" / "Varnok Software Suite.conf")
            << "Path=" << (home / "suite").string() << "/\n";
    }
    return {{"HOME", home.string()},
            {"XDG_CONFIG_HOME", (home / "config").string()},
            {"XDG_CONFIG_DIRS", system.string()},
            {"XDG_CACHE_HOME", (home / "cache").string()},
            {"XDG_DATA_HOME", (home / "data").string()},
            {"XDG_STATE_HOME", (home / "state").string()},
            {"GDK_BACKEND", "x11"},
            // What the toolkit keeps until the end is none of the program's leaks.
            {"ASAN_OPTIONS", "detect_leaks=0"}};
}

/// The program of this build, or the one that TOLVANE_PROGRAM names, such as an installed one.
fs::path programFile()
{
    const char* const other = std::getenv("TOLVANE_PROGRAM");
    return other == nullptr ? PROGRAM_UNDER_TEST : other;
}

Control::Test buttonNamed(const std::string& name)
{
    return [name](const Control& control) { return control.role() == "push button" && control.name() == name; };
}

Control::Test labelSaying(const std::string& text)
{
    return [text](const Control& control) { return control.role() == "label" && control.name() == text; };
}

/// Where a control is once it does not move any more.
Rectangle settledBounds(const Control& control)
{
    Rectangle last;
    int readings = 0;
    const bool settled = waitFor(
        [&]
        {
            const Rectangle now = control.bounds();
            readings = now == last && now.x >= 0 && now.width > 1 ? readings + 1 : 0;
            last = now;
            return readings >= steadyReadings;
        });
    if (!settled)
        throw std::runtime_error("not laid out: " + control.role() + " " + control.name());
    return last;
}

/// Waits for a control of a window.
/// @param what  how to name it when it does not come
Control waitForControlIn(const Control& window, const std::string& what, const Control::Test& fits)
{
    const std::optional<Control> found = waitFor([&] { return window.find(fits); });
    if (!found)
        throw std::runtime_error("not shown: " + what);
    return *found;
}

/// The control of a dialog that stands in one line with a label.
Control controlBeside(const Control& dialog, const std::string& label, const std::string& role)
{
    const int line = settledBounds(waitForControlIn(dialog, label, labelSaying(label))).middle().y;
    return waitForControlIn(dialog, role + " beside " + label,
                            [&](const Control& control)
                            {
                                const Rectangle bounds = control.bounds();
                                return control.role() == role && bounds.y <= line && line < bounds.y + bounds.height;
                            });
}

} // namespace

ProgramUnderTest::ProgramUnderTest(PrivateScreen& itsScreen, const fs::path& home,
                                   const std::vector<std::string>& arguments, Installation installation)
    : screen(itsScreen), errorFile(home / "stderr"),
      process(programFile(), arguments, environmentIn(home, installation), errorFile),
      bus(std::make_shared<AccessibilityBus>())
{
}

std::optional<Control> ProgramUnderTest::activeWindow() const
{
    for (const Control& window : windowsOf(bus, process.id()))
    {
        if (window.isActive())
            return window;
    }
    return std::nullopt;
}

Control ProgramUnderTest::waitForWindow(const std::string& title)
{
    const std::optional<Control> found = waitFor(
        [&]
        {
            std::optional<Control> window = activeWindow();
            return window && window->name() == title && screen.activeTitle() == title ? window : std::nullopt;
        });
    if (!found)
        throw std::runtime_error("no window with the keyboard: " + title);
    settledBounds(*found);
    return *found;
}

Control ProgramUnderTest::waitForMessage(const std::string& text, const std::string& title)
{
    const std::optional<Control> found = waitFor(
        [&]
        {
            std::optional<Control> window = activeWindow();
            // The window manager names the active window a little after the box has got the keyboard.
            return window && window->role() == "alert" && window->find(labelSaying(text)) &&
                           screen.activeTitle() == title
                       ? window
                       : std::nullopt;
        });
    if (!found)
        throw std::runtime_error("no message box \"" + title + "\" says: " + text);
    settledBounds(*found);
    return *found;
}

void ProgramUnderTest::waitUntilClosed(const std::string& title)
{
    if (!waitFor([&] { return !screen.showsTitle(title); }))
        throw std::runtime_error("still shown: " + title);
}

bool ProgramUnderTest::showsMainWindow() const
{
    return screen.showsTitle(mainTitle);
}

void ProgramUnderTest::waitForMainWindow()
{
    waitForWindow(mainTitle);
    waitForControl("status line after its first count", [](const Control& control)
                   { return control.role() == "label" && control.name().starts_with("  "); });
    // The last thing that the start does is to divide the window; what stands rightmost on the right is laid out last.
    settledBounds(waitForControl("ADDRESS", labelSaying("ADDRESS")));
    screen.parkPointer();
}

Control ProgramUnderTest::waitForControl(const std::string& what, const Control::Test& fits)
{
    const std::optional<Control> found = waitFor(
        [&]() -> std::optional<Control>
        {
            for (const Control& window : windowsOf(bus, process.id()))
            {
                if (std::optional<Control> control = window.find(fits))
                    return control;
            }
            return std::nullopt;
        });
    if (!found)
        throw std::runtime_error("not shown: " + what);
    return *found;
}

void ProgramUnderTest::click(const Control& control)
{
    screen.click(settledBounds(control).middle());
}

void ProgramUnderTest::clickButton(const Control& window, const std::string& name)
{
    click(waitForControlIn(window, "button " + name, buttonNamed(name)));
}

void ProgramUnderTest::clickTool(const std::string& tooltip)
{
    const Control::Test fits = [&](const Control& control)
    { return control.role() == "push button" && control.description() == tooltip; };
    Control leftmost = waitForControl(tooltip, fits);
    for (const Control& window : windowsOf(bus, process.id()))
    {
        for (const Control& tool : window.findAll(fits))
        {
            if (settledBounds(tool).x < settledBounds(leftmost).x)
                leftmost = tool;
        }
    }
    click(leftmost);
    screen.parkPointer();
}

void ProgramUnderTest::chooseFromMenu(GridOnScreen grid, int row, const std::string& entry)
{
    grid.rightClick(row);
    click(waitForControl(entry, [&](const Control& control)
                         { return control.role() == "menu item" && control.name() == entry; }));
    screen.parkPointer();
}

void ProgramUnderTest::waitForText(const std::string& text)
{
    waitForControl(text, labelSaying(text));
}

Rectangle ProgramUnderTest::placeOf(const std::string& textOrTooltip)
{
    return settledBounds(
        waitForControl(textOrTooltip, [&](const Control& control)
                       { return control.name() == textOrTooltip || control.description() == textOrTooltip; }));
}

GridOnScreen ProgramUnderTest::gridBelow(const std::string& columnTitle)
{
    const Rectangle title = settledBounds(waitForControl(columnTitle, labelSaying(columnTitle)));
    // The row of titles ends where the grid begins.
    const Control grid = waitForControl("grid below " + columnTitle,
                                        [&](const Control& control)
                                        {
                                            if (control.role() != "scroll pane")
                                                return false;
                                            const Rectangle bounds = control.bounds();
                                            const int below = bounds.y - (title.y + title.height);
                                            return below >= 0 && below < title.height && bounds.x <= title.x &&
                                                   title.x < bounds.x + bounds.width;
                                        });
    return {screen, settledBounds(grid)};
}

GridOnScreen ProgramUnderTest::tagGrid()
{
    return gridBelow("FLAGS");
}

GridOnScreen ProgramUnderTest::mapGrid()
{
    return gridBelow("ADDRESS");
}

void ProgramUnderTest::typeInto(const Control& field, const std::string& text)
{
    if (!field.isFocused())
        click(field);
    if (!waitFor([&] { return field.isFocused(); }))
        throw std::runtime_error("the field does not take the keyboard");
    screen.pressKey("a", Modifier::Control);
    screen.type(text);
    if (!waitFor([&] { return field.text() == text; }))
        throw std::runtime_error("the field holds " + field.text() + " instead of " + text);
}

void ProgramUnderTest::typeFilter(const std::string& text)
{
    typeInto(waitForControl("filter", [](const Control& control)
                            { return control.description() == "Tagname and Description filter"; }),
             text);
}

void ProgramUnderTest::typeInto(const Control& dialog, const std::string& label, const std::string& text)
{
    typeInto(controlBeside(dialog, label, "text"), text);
}

void ProgramUnderTest::tick(const Control& dialog, const std::string& label)
{
    const Control box = controlBeside(dialog, label, "check box");
    click(box);
    if (!waitFor([&] { return box.isChecked(); }))
        throw std::runtime_error("not ticked: " + label);
}

void ProgramUnderTest::openListed(const Control& chooser, const std::string& name)
{
    click(waitForControlIn(chooser, "file " + name,
                           [&](const Control& control)
                           { return control.role() == "table cell" && control.name() == name; }));
    clickButton(chooser, "Open");
}

void ProgramUnderTest::sendSignal(int signal) const
{
    ::kill(process.id(), signal);
}

void ProgramUnderTest::cutOffFromScreen()
{
    if (!screen.disconnectOwnerOf(mainTitle))
        throw std::runtime_error("no main window to take from the screen");
}

int ProgramUnderTest::waitForExit()
{
    const std::optional<int> code = waitFor([&] { return process.exitCode(); });
    if (!code)
        throw std::runtime_error("the program is still running");
    return *code;
}

std::string ProgramUnderTest::errorOutput() const
{
    std::ifstream file(errorFile);
    return {std::istreambuf_iterator<char>(file), {}};
}
