#include "tests/ui/OfferedList.h"

#include <wx/msw/wrapwin.h>

namespace
{

/// Whether a window is the one around the list of a completion. Its class is called otherwise by Wine, so it is known
/// by what is inside: a list view, with Wine a list box.
bool isOfferedList(HWND window)
{
    const bool isPlain = (::GetWindowLongW(window, GWL_STYLE) & WS_CAPTION) != WS_CAPTION;
    return isPlain && ::IsWindowVisible(window) != FALSE &&
           (::FindWindowExW(window, nullptr, L"SysListView32", nullptr) != nullptr ||
            ::FindWindowExW(window, nullptr, L"ListBox", nullptr) != nullptr);
}

BOOL CALLBACK rememberOfferedList(HWND window, LPARAM found)
{
    if (!isOfferedList(window))
        return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

} // namespace

std::optional<wxPoint> openListCorner()
{
    HWND list = nullptr;
    ::EnumThreadWindows(::GetCurrentThreadId(), rememberOfferedList, reinterpret_cast<LPARAM>(&list));
    RECT place{};
    if (list == nullptr || ::GetWindowRect(list, &place) == FALSE)
        return std::nullopt;
    return wxPoint(place.left, place.top);
}
