#pragma once

#include "ui/DialogBase.h"

class wxComboBox;

/// The layout of the dialog that edits one object of the register map.
class RegisterEditorBase : public DialogBase
{
public:
    explicit RegisterEditorBase(wxWindow* parent, wxWindowID id = wxID_ANY, const wxString& title = wxString(),
                                const wxPoint& position = wxDefaultPosition, const wxSize& size = wxDefaultSize);

    // The controls; the dialog owns them.
    wxTextCtrl* tagnameField = nullptr;
    wxComboBox* typeBox = nullptr;
    wxStaticText* lengthLabel = nullptr;
    wxTextCtrl* lengthField = nullptr;
    wxCheckBox* writeBox = nullptr;
    wxStaticText* byteOrderLabel = nullptr;
    wxCheckBox* swapBytesBox = nullptr;
    wxCheckBox* swapWordsBox = nullptr;
    wxCheckBox* swapLongsBox = nullptr;
    wxButton* byteSwapHelpButton = nullptr;
    wxTextCtrl* descriptionField = nullptr;
    wxStaticText* statusLabel = nullptr;
    wxButton* okButton = nullptr;

protected:
    virtual void OnTypeChanged(wxCommandEvent& event);
    virtual void OnLengthChanged(wxCommandEvent& event);
    virtual void OnOk(wxCommandEvent& event);

private:
    wxSizer* layFields();
    wxSizer* layByteOrder();
    void createTypeBox();
    void createStatusLabel();
    void connectEvents();
};
