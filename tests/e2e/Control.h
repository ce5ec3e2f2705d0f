#pragma once

#include "tests/e2e/Geometry.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

class AccessibilityBus;

/// One thing that a running program shows - a window, a button, a label - as the accessibility bus describes it.
///
/// Every question is put to the program itself, so answers are never out of date. Once the thing is gone, they are
/// empty.
class Control
{
public:
    Control(std::shared_ptr<AccessibilityBus> bus, std::string program, std::string path);

    /// What it is: "push button", "label", "frame", "alert", "dialog", "check box", "text", ...
    std::string role() const;

    /// Its text: a label's, a button's, a window's title.
    std::string name() const;

    /// Its tooltip.
    std::string description() const;

    /// What a text field holds.
    std::string text() const;

    Rectangle bounds() const;
    bool isShowing() const;
    bool isActive() const;  ///< whether a window has the keyboard
    bool isFocused() const; ///< whether a control of such a window has it
    bool isChecked() const;
    std::vector<Control> children() const;

    /// The process that shows it, 0 when it is gone.
    pid_t process() const;

    /// Whether a control is meant.
    using Test = std::function<bool(const Control&)>;

    /// All that fit among the controls below this one that are shown, in the order of the screen's hierarchy.
    std::vector<Control> findAll(const Test& fits) const;

    /// The first of them, if there is any.
    std::optional<Control> find(const Test& fits) const;

private:
    std::string property(const char* property) const;
    bool hasState(unsigned number) const;

    std::shared_ptr<AccessibilityBus> bus;
    std::string program;
    std::string path;
};

/// The windows that a process shows.
std::vector<Control> windowsOf(const std::shared_ptr<AccessibilityBus>& bus, pid_t process);
