#pragma once

#include "ui/DialogBase.h"

/// The layout of the settings dialog: the default byte order of float and of whole-number objects.
///
/// Only the swaps that the made objects can carry are shown; the other boxes exist, hidden, so that a flag which came
/// from elsewhere passes through the dialog unchanged.
class SettingsDialogBase : public DialogBase
{
public:
    explicit SettingsDialogBase(wxWindow* parent, wxWindowID id = wxID_ANY, const wxString& title = "Settings",
                                const wxPoint& position = wxDefaultPosition, const wxSize& size = wxDefaultSize);

    // The controls; the dialog owns them.
    wxButton* byteSwapHelpButton = nullptr;
    wxStaticText* longsHeading = nullptr;
    wxCheckBox* floatSwapBytes = nullptr;
    wxCheckBox* floatSwapWords = nullptr;
    wxCheckBox* floatSwapLongs = nullptr;
    wxCheckBox* intSwapBytes = nullptr;
    wxCheckBox* intSwapWords = nullptr;
    wxCheckBox* intSwapLongs = nullptr;
    wxButton* okButton = nullptr;

protected:
    virtual void OnOk(wxCommandEvent& event);

private:
    wxSizer* layHeading();
    wxStaticText* createExplanation(int leastWidth);
    wxSizer* layByteOrder();
};
