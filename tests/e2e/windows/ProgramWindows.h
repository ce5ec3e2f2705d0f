#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <functional>
#include <optional>
#include <string>
#include <vector>
#include <windows.h>

/// Waits until a condition holds.
/// @return false when it still does not after a time that only a hanging program needs
[[nodiscard]] bool waitFor(const std::function<bool()>& condition);

/// The suite's key in the registry of the user, as a test wants it; what was there before is not kept, so these tests
/// are for a registry of their own.
class SuiteKey
{
public:
    SuiteKey() { remove(); }
    ~SuiteKey() { remove(); }
    SuiteKey(const SuiteKey&) = delete;
    SuiteKey& operator=(const SuiteKey&) = delete;

    /// Makes the key with its value "Path".
    static void install(const std::wstring& path);

    static void remove();
};

/// The real program, worked with mouse and keys; it is ended with this object.
class Program
{
public:
    /// @param arguments  may hold blanks, but no quotation marks
    explicit Program(const std::vector<std::wstring>& arguments);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// The program's window with that title, once it is there and has the keyboard.
    HWND waitForWindow(const std::wstring& title) const;

    /// The texts of a message box, one after the other: its headline may be a part of its own.
    static std::wstring messageOf(HWND box);

    /// Presses the button with that text in a message box.
    static void answer(HWND box, const std::wstring& button);

    /// Selects the first row of the map, and deletes it with its key.
    void deleteFirstRow(HWND mainWindow) const;

    /// Presses the last button of the upper bar, with which the program is left.
    static void pressExit(HWND mainWindow);

    /// The exit code once the program has ended; none when it does not end.
    std::optional<DWORD> waitForExit() const;

private:
    PROCESS_INFORMATION process{};
};
