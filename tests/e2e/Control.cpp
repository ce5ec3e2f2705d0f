#include "tests/e2e/Control.h"

#include "tests/e2e/AccessibilityBus.h"

namespace
{

constexpr const char* accessibleInterface = "org.a11y.atspi.Accessible";
constexpr const char* rootPath = "/org/a11y/atspi/accessible/root";

/// Numbers of states on the bus.
constexpr unsigned activeState = 1;
constexpr unsigned checkedState = 4;
constexpr unsigned focusedState = 12;
constexpr unsigned showingState = 25;

/// Bounds are asked for in pixels of the screen, not of the window.
constexpr unsigned screenCoordinates = 0;

} // namespace

Control::Control(std::shared_ptr<AccessibilityBus> itsBus, std::string itsProgram, std::string itsPath)
    : bus(std::move(itsBus)), program(std::move(itsProgram)), path(std::move(itsPath))
{
}

std::string Control::property(const char* property) const
{
    const Answer answer = bus->call(program, path, "org.freedesktop.DBus.Properties", "Get",
                                    g_variant_new("(ss)", accessibleInterface, property));
    if (!answer)
        return {};
    GVariant* boxed = nullptr;
    g_variant_get(answer.get(), "(v)", &boxed);
    const Answer value(boxed);
    return g_variant_get_string(value.get(), nullptr);
}

std::string Control::role() const
{
    const Answer answer = bus->call(program, path, accessibleInterface, "GetRoleName");
    const char* role = "";
    if (answer)
        g_variant_get(answer.get(), "(&s)", &role);
    return role;
}

std::string Control::name() const
{
    return property("Name");
}

std::string Control::description() const
{
    return property("Description");
}

std::string Control::text() const
{
    const Answer answer = bus->call(program, path, "org.a11y.atspi.Text", "GetText", g_variant_new("(ii)", 0, -1));
    const char* text = "";
    if (answer)
        g_variant_get(answer.get(), "(&s)", &text);
    return text;
}

Rectangle Control::bounds() const
{
    const Answer answer =
        bus->call(program, path, "org.a11y.atspi.Component", "GetExtents", g_variant_new("(u)", screenCoordinates));
    Rectangle bounds;
    if (answer)
        g_variant_get(answer.get(), "((iiii))", &bounds.x, &bounds.y, &bounds.width, &bounds.height);
    return bounds;
}

bool Control::hasState(unsigned number) const
{
    const Answer answer = bus->call(program, path, accessibleInterface, "GetState");
    if (!answer)
        return false;
    GVariantIter* words = nullptr;
    g_variant_get(answer.get(), "(au)", &words);
    guint32 firstWord = 0;
    g_variant_iter_next(words, "u", &firstWord);
    g_variant_iter_free(words);
    return ((firstWord >> number) & 1U) != 0;
}

bool Control::isShowing() const
{
    return hasState(showingState);
}

bool Control::isActive() const
{
    return hasState(activeState);
}

bool Control::isFocused() const
{
    return hasState(focusedState);
}

bool Control::isChecked() const
{
    return hasState(checkedState);
}

std::vector<Control> Control::children() const
{
    std::vector<Control> found;
    const Answer answer = bus->call(program, path, accessibleInterface, "GetChildren");
    if (!answer)
        return found;
    GVariantIter* references = nullptr;
    g_variant_get(answer.get(), "(a(so))", &references);
    const char* owner = nullptr;
    const char* childPath = nullptr;
    while (g_variant_iter_next(references, "(&s&o)", &owner, &childPath))
        found.emplace_back(bus, owner, childPath);
    g_variant_iter_free(references);
    return found;
}

pid_t Control::process() const
{
    const Answer answer = bus->call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                                    "GetConnectionUnixProcessID", g_variant_new("(s)", program.c_str()));
    guint32 process = 0;
    if (answer)
        g_variant_get(answer.get(), "(u)", &process);
    return static_cast<pid_t>(process);
}

std::vector<Control> Control::findAll(const Test& fits) const
{
    std::vector<Control> found;
    for (const Control& child : children())
    {
        if (!child.isShowing())
            continue;
        if (fits(child))
            found.push_back(child);
        const std::vector<Control> below = child.findAll(fits);
        found.insert(found.end(), below.begin(), below.end());
    }
    return found;
}

std::optional<Control> Control::find(const Test& fits) const
{
    for (const Control& child : children())
    {
        if (!child.isShowing())
            continue;
        if (fits(child))
            return child;
        if (std::optional<Control> below = child.find(fits))
            return below;
    }
    return std::nullopt;
}

std::vector<Control> windowsOf(const std::shared_ptr<AccessibilityBus>& bus, pid_t process)
{
    std::vector<Control> windows;
    for (const Control& program : Control(bus, "org.a11y.atspi.Registry", rootPath).children())
    {
        if (program.process() != process)
            continue;
        for (Control& window : program.children())
        {
            if (window.isShowing())
                windows.push_back(std::move(window));
        }
    }
    return windows;
}
