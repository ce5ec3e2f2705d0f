// The commands that ask in a dialog of their own. Each fills its dialog, waits, and hands what the user has confirmed
// to one operation of the model. A command that cannot start does nothing and says nothing.

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
    // The rows as they are, not whole objects: in the compressed list an object gets a new name at its head only. The
    // head's name is the one in the files.
    TagSearchAndReplaceDialog dialog(mapGrid, wxID_ANY, "Tagname Search and Replace");
    if (dialog.ShowModal() != wxID_OK)
        return;
    const std::string find = modelText(dialog.findText->GetValue());
    // An empty text stands everywhere and is not looked for. An empty replacement is meant: it removes.
    if (find.empty())
        return;
    // The list stays as it is, selection included, where no name could be changed.
    if (!::replaceInTagnames(map.currentSlots(), addresses, find, modelText(dialog.replaceText->GetValue())))
        return;
    document.validate();
    refreshMapView(-1);
}

void MainFrame::editRegister()
{
    const std::vector<int> addresses = selectedAddresses();
    // The fields show one object. A double click has selected its row before it gets here.
    if (addresses.size() != 1)
        return;
    RegisterSlots& slots = map.currentSlots();
    const std::optional<int> head = editedHead(slots, addresses.front());
    // A locked object is left alone without a word.
    if (!head)
        return;
    const RegisterEntry entry = editedEntry(slots, *head);
    const wxString spaceName = toolkitText(spaceDisplayName(static_cast<int>(map.currentSpace)));
    // The name that the user knows the register by: space, and address in five digits as in the list.
    RegisterEditor dialog(mapGrid, wxID_ANY, wxString::Format("%s register %05d", spaceName, entry.address));
    dialog.showEntry(entry, editRoom(slots, *head));
    dialog.offerTagnames(document.database.tags);
    if (dialog.ShowModal() != wxID_OK)
        return;
    // The map is judged again, because name, type and length decide about its marks.
    applyEdit(document.map, *head, dialog.editedRegister());
    document.validate();
    refreshMapView(-1);
}

void MainFrame::editSettings()
{
    SettingsDialog dialog(this);
    // The order counts for objects made from now on; those in the map keep their own. It is saved nowhere: the next
    // start takes it from the command line again.
    dialog.showByteOrder(document.defaultByteOrder);
    if (dialog.ShowModal() == wxID_OK)
        document.defaultByteOrder = dialog.byteOrder();
}

void MainFrame::OnMapGridCellDClick(wxGridEvent&)
{
    editRegister();
}
