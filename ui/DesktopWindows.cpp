// What only Windows can be asked for. Each function makes good what the system, or toolkit 3.2 on top of it, does
// differently from what the dark windows need.

#include "ui/DarkModeWindows.h"
#include "ui/DarkTreeWindows.h"
#include "ui/Desktop.h"
#include "ui/FocusRingWindows.h"
#include "ui/Theme.h"

#include <wx/bmpbuttn.h>
#include <wx/dc.h>
#include <wx/msw/wrapwin.h>
#include <wx/renderer.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>
#include <wx/weakref.h>

#include <memory>
#include <utility>

namespace
{

/// Draws the sash of a splitter, which the toolkit otherwise draws for a light window.
class DarkSash : public wxDelegateRendererNative
{
public:
    // Asked for, toolkit 3.2 makes the usual one; later that would take the place of this one.
    DarkSash() : wxDelegateRendererNative(wxRendererNative::Get()) {}

    void DrawSplitterSash(wxWindow* window, wxDC& dc, const wxSize& size, wxCoord position, wxOrientation orientation,
                          int) override
    {
        const int width = GetSplitterParams(window).widthSash;
        dc.SetPen(*wxTRANSPARENT_PEN);
        dc.SetBrush(wxBrush(theme::colour(theme::headerBackground)));
        dc.DrawRectangle(orientation == wxVERTICAL ? wxRect(position, 0, width, size.GetHeight())
                                                   : wxRect(0, position, size.GetWidth(), width));
    }
};

/// Whom the focus goes back to once a button is released.
struct LentFocus
{
    wxWeakRef<wxWindow> owner;
    bool isWatched = false;

    void giveBack()
    {
        if (wxWindow* const window = owner.get())
            window->SetFocus();
        owner = nullptr;
    }
};

} // namespace

namespace desktop
{

void preferDark()
{
    darkMode::prefer();
}

void drawControlsPlainly()
{
    // Other controls of this system do.
    wxRendererNative::Set(new DarkSash);
}

void darken(wxWindow& window)
{
    darkMode::dress(window);
}

void showFocusAtOnce(wxWindow&)
{
    // The user's settings of this system decide.
}

void keepOneTabStop(wxComboBox&)
{
    // This system stops once.
}

void setAccessibleName(wxWindow&, const wxString&)
{
    // Screen readers of this system take the label in front of a control.
}

wxTreeCtrl* createTree(wxWindow* parent, long style)
{
    return new DarkTree(parent, style);
}

wxButton* createButton(wxWindow* parent, wxWindowID id, const wxString& text, long style)
{
    return new Ringed<wxButton>(parent, id, text, wxDefaultPosition, wxDefaultSize, style);
}

wxBitmapButton* createPictureButton(wxWindow* parent, const wxBitmapBundle& picture, const wxSize& size)
{
    auto* const button =
        new Ringed<wxBitmapButton>(parent, wxID_ANY, picture, wxDefaultPosition, size, wxBORDER_NONE | wxBU_EXACTFIT);
    button->SetBackgroundColour(theme::colour(theme::headerBackground));
    button->SetForegroundColour(theme::colour(theme::contentText));
    return button;
}

void keepFocusOnClick(wxWindow& control)
{
    // Buttons of this system take the focus when they are pressed; the Tab key may give it to them. A button that loses
    // it while it is down forgets the click, so it is given back when the click is made.
    const auto lent = std::make_shared<LentFocus>();
    control.Bind(wxEVT_SET_FOCUS,
                 [&control, lent](wxFocusEvent& event)
                 {
                     event.Skip();
                     // As of the press that is handled now: of a quick click the release has come in, too.
                     if (::GetKeyState(VK_LBUTTON) >= 0)
                         return;
                     lent->owner = event.GetWindow();
                     // Not before the first press: what is bound last runs first, and the command that the button has
                     // got meanwhile may open a dialog, which gives the focus back to whoever had it before.
                     if (!std::exchange(lent->isWatched, true))
                     {
                         control.Bind(wxEVT_BUTTON,
                                      [lent](wxCommandEvent& click)
                                      {
                                          click.Skip();
                                          lent->giveBack();
                                      });
                     }
                 });
    // Released beside the button no click is made. The system looks at the release after this.
    control.Bind(wxEVT_LEFT_UP,
                 [&control, lent](wxMouseEvent& event)
                 {
                     event.Skip();
                     control.CallAfter([lent] { lent->giveBack(); });
                 });
}

int fieldHeight(const wxTextCtrl& field)
{
    return field.GetBestSize().GetHeight();
}

} // namespace desktop
