#include "tests/e2e/windows/ProgramWindows.h"

#include "tests/e2e/Patience.h"

#include <gtest/gtest.h>

#include <array>

namespace
{

/// A place inside the first row of a list, from its corner.
constexpr POINT insideFirstRow{90, 12};

constexpr const wchar_t* keyName = L"Software\\BELTHORNE LTD\\Varnok Software Suite";

std::wstring textOf(HWND window)
{
    std::array<wchar_t, 1024> text{};
    ::GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    return text.data();
}

std::wstring kindOf(HWND window)
{
    std::array<wchar_t, 64> kind{};
    ::GetClassNameW(window, kind.data(), static_cast<int>(kind.size()));
    return kind.data();
}

/// All windows below one, or all windows on the desktop.
std::vector<HWND> windowsBelow(HWND parent)
{
    std::vector<HWND> windows;
    const auto collect = [](HWND window, LPARAM list) -> BOOL
    {
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
        return TRUE;
    };
    if (parent)
        ::EnumChildWindows(parent, collect, reinterpret_cast<LPARAM>(&windows));
    else
        ::EnumWindows(collect, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

RECT placeOf(HWND window)
{
    RECT place{};
    ::GetWindowRect(window, &place);
    return place;
}

/// @param key  of the block beside the letters; the number pad has keys of the same codes
void press(WORD key)
{
    std::array<INPUT, 2> inputs{};
    for (INPUT& input : inputs)
    {
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.dwFlags = KEYEVENTF_EXTENDEDKEY;
    }
    inputs[1].ki.dwFlags |= KEYEVENTF_KEYUP;
    ::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

/// A coordinate in the unit of the mouse, which divides the screen into 65,536 parts.
LONG partOfScreen(LONG pixel, int metric)
{
    constexpr LONG parts = 65536;
    return (pixel * parts + parts / 2) / ::GetSystemMetrics(metric);
}

/// Clicks in one go: between a movement and a press the pointer could be taken back to where it was before.
void clickAt(POINT place)
{
    std::array<INPUT, 3> inputs{};
    for (INPUT& input : inputs)
    {
        input.type = INPUT_MOUSE;
        input.mi.dx = partOfScreen(place.x, SM_CXSCREEN);
        input.mi.dy = partOfScreen(place.y, SM_CYSCREEN);
        input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    }
    inputs[1].mi.dwFlags |= MOUSEEVENTF_LEFTDOWN;
    inputs[2].mi.dwFlags |= MOUSEEVENTF_LEFTUP;
    ::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

/// Tells the window around a button that it was pressed, as the button does. A click may be lost while the window
/// manager below Wine moves what has just been shown to its place.
void pressButton(HWND button)
{
    const WPARAM press = MAKEWPARAM(::GetDlgCtrlID(button), BN_CLICKED);
    ::PostMessageW(::GetParent(button), WM_COMMAND, press, reinterpret_cast<LPARAM>(button));
}

/// The control of a program's window that has the keyboard.
HWND focusIn(HWND window)
{
    GUITHREADINFO state{};
    state.cbSize = sizeof state;
    ::GetGUIThreadInfo(::GetWindowThreadProcessId(window, nullptr), &state);
    return state.hwndFocus;
}

} // namespace

SuiteKey::SuiteKey(const std::wstring& path)
{
    remove();
    HKEY key = nullptr;
    EXPECT_EQ(::RegCreateKeyExW(HKEY_CURRENT_USER, keyName, 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr), 0);
    const auto size = static_cast<DWORD>((path.size() + 1) * sizeof(wchar_t));
    EXPECT_EQ(::RegSetValueExW(key, L"Path", 0, REG_SZ, reinterpret_cast<const BYTE*>(path.c_str()), size), 0);
    ::RegCloseKey(key);
}

void SuiteKey::remove()
{
    ::RegDeleteTreeW(HKEY_CURRENT_USER, keyName);
}

Program::Program(const std::vector<std::wstring>& arguments)
{
    // The one that was built with the tests, or another one, which is installed.
    const wchar_t* const other = ::_wgetenv(L"TOLVANE_PROGRAM");
    std::wstring line = L"\"" + std::wstring(other != nullptr ? other : PROGRAM_UNDER_TEST) + L"\"";
    for (const std::wstring& argument : arguments)
        line += L" \"" + argument + L"\"";
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    EXPECT_TRUE(
        ::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process))
        << ::GetLastError();
    // Until then a window may be seen that is not laid out yet.
    ::WaitForInputIdle(process.hProcess, INFINITE);
}

Program::~Program()
{
    ::TerminateProcess(process.hProcess, 99);
    ::WaitForSingleObject(process.hProcess, INFINITE);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
}

HWND Program::waitForWindow(const std::wstring& title) const
{
    HWND found = nullptr;
    const auto isThere = [&]
    {
        for (const HWND window : windowsBelow(nullptr))
        {
            DWORD owner = 0;
            ::GetWindowThreadProcessId(window, &owner);
            if (owner == process.dwProcessId && ::IsWindowVisible(window) && textOf(window) == title)
                found = window;
        }
        return found != nullptr && ::GetForegroundWindow() == found && focusIn(found) != nullptr;
    };
    EXPECT_TRUE(waitFor(isThere));
    return found;
}

std::wstring Program::messageOf(HWND box)
{
    std::wstring message;
    for (const HWND part : windowsBelow(box))
    {
        if (kindOf(part) == L"Static")
            message += textOf(part);
    }
    return message;
}

void Program::answer(HWND box, const std::wstring& button)
{
    for (const HWND part : windowsBelow(box))
    {
        if (kindOf(part) == L"Button" && ::IsWindowVisible(part) && textOf(part) == button)
            return pressButton(part);
    }
    ADD_FAILURE() << "no such button";
}

void Program::deleteFirstRow(HWND mainWindow) const
{
    // The map is in the right half. It gets the keyboard once the window is laid out, which is after it is shown.
    const RECT window = placeOf(mainWindow);
    POINT row{};
    ASSERT_TRUE(waitFor(
        [&]
        {
            const HWND list = focusIn(mainWindow);
            const RECT place = placeOf(list);
            row = {place.left + insideFirstRow.x, place.top + insideFirstRow.y};
            return place.left >= (window.left + window.right) / 2 && ::WindowFromPoint(row) == list;
        }));
    clickAt(row);
    press(VK_DELETE);
}

void Program::pressExit(HWND mainWindow)
{
    HWND last = nullptr;
    for (const HWND part : windowsBelow(mainWindow))
    {
        if (kindOf(part) != L"Button" || !::IsWindowVisible(part))
            continue;
        const RECT place = placeOf(part);
        const bool isFurther = last == nullptr || place.top < placeOf(last).top ||
                               (place.top == placeOf(last).top && place.left > placeOf(last).left);
        if (isFurther)
            last = part;
    }
    ASSERT_NE(last, nullptr);
    // With the mouse: what is posted would be handled before the keys that were pressed earlier.
    const RECT place = placeOf(last);
    clickAt({(place.left + place.right) / 2, (place.top + place.bottom) / 2});
}

std::optional<DWORD> Program::waitForExit() const
{
    DWORD code = STILL_ACTIVE;
    const bool ended = waitFor([&] { return ::WaitForSingleObject(process.hProcess, 0) == WAIT_OBJECT_0; });
    if (!ended || !::GetExitCodeProcess(process.hProcess, &code))
        return std::nullopt;
    return code;
}
