#pragma once

#include "map/RegisterEdit.h"
#include "source/TagTable.h"
#include "ui/RegisterEditorBase.h"

/// Lets the user edit one object of the register map and says beforehand whether its new size fits.
/// Shown modally it answers wxID_OK for an edit to apply, otherwise wxID_CANCEL.
class RegisterEditor : public RegisterEditorBase
{
public:
    explicit RegisterEditor(wxWindow* parent, wxWindowID id = wxID_ANY, const wxString& title = wxString());

    /// Fills every field from an object and takes the room that it has.
    void showEntry(const RegisterEntry& entry, EditRoom entryRoom);

    /// Offers the names of the tag database while a tagname is typed.
    /// @param tags  outlives the dialog
    void offerTagnames(const TagTable& tags);

    /// What the fields say; to be read after wxID_OK.
    EditedRegister editedRegister() const;

protected:
    void OnTypeChanged(wxCommandEvent& event) override;
    void OnLengthChanged(wxCommandEvent& event) override;
    void OnOk(wxCommandEvent& event) override;

private:
    void showFieldsFor(const FieldVisibility& visibility);
    void offerOk(const wxString& text);

    /// Lays the controls out again after some of them have changed.
    void layAnew();

    EditRoom room;
};
