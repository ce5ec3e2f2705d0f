#pragma once

#include <wx/msw/wrapcctl.h>
#include <wx/treectrl.h>

/// A tree whose chosen node can be read while the keyboard is elsewhere: the system then lays light grey under it.
/// No node is chosen until its user chooses one.
class DarkTree : public wxTreeCtrl
{
public:
    DarkTree(wxWindow* parent, long style);

    WXLRESULT MSWWindowProc(WXUINT message, WXWPARAM first, WXLPARAM second) override;

protected:
    bool MSWOnNotify(int control, WXLPARAM parameter, WXLPARAM* result) override;

private:
    void OnKeyDown(wxKeyEvent& event);
    void showChosen(NMTVCUSTOMDRAW& drawn) const;

    bool isTakingFocus = false;
};
