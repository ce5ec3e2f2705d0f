#include "ui/DarkTreeWindows.h"

#include "ui/Theme.h"

#include <utility>

DarkTree::DarkTree(wxWindow* parent, long style) : wxTreeCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, style)
{
    Bind(wxEVT_KEY_DOWN, &DarkTree::OnKeyDown, this);
}

WXLRESULT DarkTree::MSWWindowProc(WXUINT message, WXWPARAM first, WXLPARAM second)
{
    const bool before = std::exchange(isTakingFocus, message == WM_SETFOCUS);
    const WXLRESULT result = wxTreeCtrl::MSWWindowProc(message, first, second);
    isTakingFocus = before;
    return result;
}

bool DarkTree::MSWOnNotify(int control, WXLPARAM parameter, WXLPARAM* result)
{
    // The system chooses the first node when the keyboard comes and none is chosen.
    if (isTakingFocus && reinterpret_cast<const NMHDR*>(parameter)->code == static_cast<UINT>(TVN_SELCHANGING))
    {
        *result = TRUE;
        return true;
    }
    const bool handled = wxTreeCtrl::MSWOnNotify(control, parameter, result);
    auto* const drawn = reinterpret_cast<NMTVCUSTOMDRAW*>(parameter);
    if (drawn->nmcd.hdr.code != static_cast<UINT>(NM_CUSTOMDRAW))
        return handled;
    if (drawn->nmcd.dwDrawStage == CDDS_PREPAINT)
        *result |= CDRF_NOTIFYITEMDRAW;
    else if (drawn->nmcd.dwDrawStage == CDDS_ITEMPREPAINT && (drawn->nmcd.uItemState & CDIS_SELECTED) != 0)
        showChosen(*drawn);
    return true;
}

void DarkTree::OnKeyDown(wxKeyEvent& event)
{
    // The system's own keys start from the node that is chosen.
    const bool goesDown = event.GetKeyCode() == WXK_DOWN || event.GetKeyCode() == WXK_HOME;
    wxTreeItemIdValue cookie = nullptr;
    const wxTreeItemId first = GetFirstChild(GetRootItem(), cookie);
    if (goesDown && first.IsOk() && !GetSelection().IsOk())
        SelectItem(first);
    else
        event.Skip();
}

void DarkTree::showChosen(NMTVCUSTOMDRAW& drawn) const
{
    const Rgb ground = HasFocus() ? theme::selection : theme::entryBackground;
    const Rgb text = HasFocus() ? theme::selectionText : theme::entryText;
    drawn.clrTextBk = RGB(ground.red, ground.green, ground.blue);
    drawn.clrText = RGB(text.red, text.green, text.blue);
}
