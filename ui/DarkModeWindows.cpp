// The system has a documented call for dark captions only. What its own programs use for the rest has no names, but
// kept its numbers since Windows 10 1903; older systems have other calls under them, or none.

#include "ui/DarkModeWindows.h"

#include <wx/msw/wrapwin.h>
#include <wx/toplevel.h>
#include <wx/utils.h>

#include <dwmapi.h>
#include <uxtheme.h>

namespace
{

/// The build of Windows 10 1903.
constexpr int firstBuild = 18362;

/// The answer of `SetPreferredAppMode` to "dark, whatever the user has set": our windows are dark always.
constexpr int forceDark = 2;

/// The attribute of a dark caption, which older headers do not name.
constexpr DWORD darkCaption = 20;

/// Wine names the same version, and has other things or nothing under these numbers.
bool isOffered()
{
    return wxCheckOsVersion(10, 0, firstBuild) &&
           ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") == nullptr;
}

/// A call of the theme library by its number.
template <typename Call>
Call themeCall(WORD number)
{
    const HMODULE library = ::GetModuleHandleW(L"uxtheme.dll");
    return library == nullptr
               ? nullptr
               : reinterpret_cast<Call>(reinterpret_cast<void*>(::GetProcAddress(library, MAKEINTRESOURCEA(number))));
}

} // namespace

namespace darkMode
{

void prefer()
{
    if (!isOffered())
        return;
    if (const auto setPreferredAppMode = themeCall<int(WINAPI*)(int)>(135))
        setPreferredAppMode(forceDark);
}

void dress(wxWindow& window)
{
    if (!isOffered())
        return;
    const HWND handle = window.GetHandle();
    if (window.IsTopLevel())
    {
        const BOOL dark = TRUE;
        ::DwmSetWindowAttribute(handle, darkCaption, &dark, sizeof dark);
    }
    if (const auto allowDark = themeCall<bool(WINAPI*)(HWND, bool)>(133))
        allowDark(handle, true);
    ::SetWindowTheme(handle, L"DarkMode_Explorer", nullptr);
    for (wxWindow* const child : window.GetChildren())
        dress(*child);
}

} // namespace darkMode
