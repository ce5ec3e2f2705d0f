// The commands that ask in a dialog of their own.

#include "map/RegisterEdit.h"
#include "map/TagnameReplace.h"
#include "ui/MainFrame.h"
#include "ui/RegisterEditor.h"
#include "ui/SettingsDialog.h"
#include "ui/TagSearchAndReplaceDialog.h"
#include "ui/ToolkitText.h"

#include <wx/grid.h>
#include <wx/textctrl.h>

void MainFrame::replaceInTagnames()
{
    const std::vector<int> addresses = selectedAddresses();
    if (addresses.empty())
        return;
    TagSearchAndReplaceDialog dialog(mapGrid, wxID_ANY, "Tagname Search and Replace");
    if (dialog.ShowModal() != wxID_OK)
        return;
    const std::string find = modelText(dialog.findText->GetValue());
    if (find.empty())
        return;
    if (!::replaceInTagnames(map.currentSlots(), addresses, find, modelText(dialog.replaceText->GetValue())))
        return;
    document.validate();
    refreshMapView(-1);
}

void MainFrame::editRegister()
{
    const std::vector<int> addresses = selectedAddresses();
    if (addresses.size() != 1)
        return;
    RegisterSlots& slots = map.currentSlots();
    const std::optional<int> head = editedHead(slots, addresses.front());
    if (!head)
        return;
    const RegisterEntry entry = editedEntry(slots, *head);
    const wxString spaceName = toolkitText(spaceDisplayName(static_cast<int>(map.currentSpace)));
    RegisterEditor dialog(mapGrid, wxID_ANY, wxString::Format("%s register %05d", spaceName, entry.address));
    dialog.showEntry(entry, editRoom(slots, *head));
    dialog.offerTagnames(document.database.tags);
    if (dialog.ShowModal() != wxID_OK)
        return;
    applyEdit(document.map, *head, dialog.editedRegister());
    document.validate();
    refreshMapView(-1);
}

void MainFrame::editSettings()
{
    SettingsDialog dialog(this);
    dialog.showByteOrder(document.defaultByteOrder);
    if (dialog.ShowModal() == wxID_OK)
        document.defaultByteOrder = dialog.byteOrder();
}

void MainFrame::OnMapGridCellDClick(wxGridEvent&)
{
    editRegister();
}
