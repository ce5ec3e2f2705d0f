#pragma once

#include "map/DefaultByteOrder.h"
#include "ui/SettingsDialogBase.h"

/// Lets the user set the byte order that objects made from database tags start with.
/// Shown modally it answers wxID_OK or wxID_CANCEL.
class SettingsDialog : public SettingsDialogBase
{
public:
    using SettingsDialogBase::SettingsDialogBase;

    /// Fills all six check boxes.
    void showByteOrder(const DefaultByteOrder& order);

    /// What all six check boxes say, the hidden ones too.
    DefaultByteOrder byteOrder() const;

protected:
    void OnOk(wxCommandEvent& event) override;
};
