// Carries the six flags of the default byte order into the boxes and back. Three of the boxes are hidden. They are
// filled and read like the others, so that a flag from the command line is still set after the dialog.

#include "ui/SettingsDialog.h"

#include <wx/checkbox.h>

void SettingsDialog::showByteOrder(const DefaultByteOrder& order)
{
    floatSwapBytes->SetValue(order.floatSwapBytes);
    floatSwapWords->SetValue(order.floatSwapWords);
    floatSwapLongs->SetValue(order.floatSwapLongs);
    intSwapBytes->SetValue(order.intSwapBytes);
    intSwapWords->SetValue(order.intSwapWords);
    intSwapLongs->SetValue(order.intSwapLongs);
}

DefaultByteOrder SettingsDialog::byteOrder() const
{
    return {.intSwapBytes = intSwapBytes->IsChecked(),
            .intSwapWords = intSwapWords->IsChecked(),
            .intSwapLongs = intSwapLongs->IsChecked(),
            .floatSwapBytes = floatSwapBytes->IsChecked(),
            .floatSwapWords = floatSwapWords->IsChecked(),
            .floatSwapLongs = floatSwapLongs->IsChecked()};
}

void SettingsDialog::OnOk(wxCommandEvent&)
{
    // Nothing can be wrong with six boxes, so nothing is checked.
    EndModal(wxID_OK);
}
