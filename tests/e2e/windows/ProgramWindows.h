#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <optional>
#include <string>
#include <vector>
#include <windows.h>

/// The suite's key in the registry of the user, for as long as this is there; what was there before is not kept, so
/// these tests are for a registry of their own.
class SuiteKey
{
public:
    /// Makes the key.
    /// @param path  of its value "Path"
    explicit SuiteKey(const std::wstring& path);
    ~SuiteKey() { remove(); }
    SuiteKey(const SuiteKey&) = delete;
    SuiteKey& operator=(const SuiteKey&) = delete;

    /// Takes the key away before its time.
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
