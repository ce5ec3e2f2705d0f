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
    EndModal(wxID_OK);
}
