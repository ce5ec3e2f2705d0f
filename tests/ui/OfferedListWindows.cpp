#include "tests/ui/OfferedList.h"

#include <wx/msw/wrapwin.h>

std::optional<wxPoint> openListCorner()
{
    std::optional<wxPoint> corner;
    HWND list = nullptr;
    // There is one for every field that offers names, and each stays when its field has gone.
    while ((list = ::FindWindowExW(nullptr, list, L"Auto-Suggest Dropdown", nullptr)) != nullptr)
    {
        RECT place{};
        if (::IsWindowVisible(list) && ::GetWindowRect(list, &place))
            corner = wxPoint(place.left, place.top);
    }
    return corner;
}
