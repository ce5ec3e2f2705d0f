#pragma once

#include "tests/ui/UiTest.h"
#include "ui/RegisterEditor.h"

#include <functional>
#include <string>

constexpr EditRoom plentyOfRoom{1000, 1000};

/// An object named "PUMP" at address 42.
RegisterEntry entryOf(DataType type, std::uint32_t registers);

/// A register editor that shows such an object.
class EditorUnderTest : public RegisterEditor
{
public:
    explicit EditorUnderTest(DataType type, std::uint32_t registers = 1, EditRoom entryRoom = plentyOfRoom);

    /// Works the editor and leaves it with the Esc key.
    void explore(const std::function<void()>& steps);

    void typeType(const std::string& name);
    void typeLength(const std::string& digits);

    /// The fields that are seen, in the order of the labels Length and Byte Order, the field and the boxes.
    std::string seen() const;

    std::string status() const;

    /// The text of the button that confirms, empty while it is hidden.
    std::string ok() const;
};
