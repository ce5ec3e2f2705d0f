// The picture behind the " ? " buttons. It shows what each swap does to the bytes of a value, which is hard to say in
// words and easy to get wrong: a wrong byte order shows only when the device delivers nonsense.

#include "ui/ByteSwapHelp.h"

#include "ui/NamedImages.h"
#include "ui/Theme.h"

#include <wx/dialog.h>
#include <wx/display.h>
#include <wx/statbmp.h>

namespace
{

/// Pixels between the picture's window and the edge of the display.
constexpr int edgeGap = 40;

void moveToRightEdge(wxWindow& window)
{
    // On the primary display: the picture is meant to stand beside the dialog, and dialogs open in the middle.
    const wxRect display = wxDisplay().GetGeometry();
    const wxSize size = window.GetSize();
    window.Move(display.x + display.width - size.x - edgeGap, display.y + (display.height - size.y) / 2);
}

} // namespace

void showByteSwapHelp()
{
    // Without a parent: two dialogs have the button, and the picture must not cover either.
    wxDialog dialog(nullptr, wxID_ANY, "Help", wxDefaultPosition, wxDefaultSize, wxDEFAULT_DIALOG_STYLE);
    dialog.SetBackgroundColour(theme::colour(theme::dialogBackground));
    const auto* const picture = new wxStaticBitmap(&dialog, wxID_ANY, namedImage("png_help_byteswap"));
    dialog.SetClientSize(picture->GetBestSize());
    moveToRightEdge(dialog);
    // Without a Cancel button the toolkit gives the Esc key no meaning.
    dialog.Bind(wxEVT_CHAR_HOOK,
                [&dialog](wxKeyEvent& event)
                {
                    if (event.GetKeyCode() == WXK_ESCAPE)
                        dialog.EndModal(wxID_CANCEL);
                    else
                        event.Skip();
                });
    dialog.ShowModal();
}
