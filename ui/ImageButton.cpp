#include "ui/ImageButton.h"

#include "ui/Desktop.h"
#include "ui/NamedImages.h"
#include "ui/Theme.h"

wxBitmapButton* createImageButton(wxWindow* parent, const wxString& name, const wxString& tooltip, bool hovering)
{
    auto* const button = new wxBitmapButton(parent, wxID_ANY, namedImage(name), wxDefaultPosition, wxDefaultSize,
                                            wxBORDER_NONE | wxBU_EXACTFIT);
    button->SetBackgroundColour(theme::colour(theme::headerBackground));
    button->SetBitmapPressed(namedImage(name + "_pressed"));
    if (hovering)
        button->SetBitmapCurrent(namedImage(name + "_hover"));
    button->SetToolTip(tooltip);
    desktop::keepFocusOnClick(*button);
    return button;
}
