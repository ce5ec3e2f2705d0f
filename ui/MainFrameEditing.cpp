// The editing commands: selection to addresses, one operation of the model, view up to date.

#include "map/Clipboard.h"
#include "map/Compress.h"
#include "map/ErrorPurge.h"
#include "map/Locks.h"
#include "map/TagPlacing.h"
#include "ui/MainFrame.h"
#include "ui/MessageBox.h"
#include "ui/Messages.h"
#include "ui/SourceBrowser.h"
#include "ui/grid/MapGridTable.h"

#include <wx/grid.h>

void MainFrame::copySourceTags()
{
    map.clipboard = ::copySourceTags(document.database.tags, sourceBrowser->selectedTags(), document.defaultByteOrder);
}

void MainFrame::selectAllTags()
{
    sourceBrowser->selectAllTags();
}

void MainFrame::copyRegisters()
{
    ::copyRegisters(map, collectSelection());
}

void MainFrame::cutRegisters()
{
    const std::vector<int> addresses = collectSelection();
    if (addresses.empty())
        return;
    ::cutRegisters(map, addresses);
    refreshMapView(-1);
}

void MainFrame::pasteRegisters()
{
    const std::optional<int> target = insertionTarget(mapTable->GetNumberRows(), selectedAddresses());
    if (!target)
        return;
    switch (::pasteRegisters(map, *target))
    {
    case PasteResult::NoRoom:
        messageBox(pasteRefusedText);
        break;
    case PasteResult::Pasted:
        refreshMapView(-1);
        break;
    case PasteResult::NothingToDo:
        break;
    }
}

void MainFrame::appendRegisters()
{
    const std::optional<int> target = insertionTarget(mapTable->GetNumberRows(), selectedAddresses());
    if (target && ::appendRegisters(map, *target))
        refreshMapView(-1);
}

void MainFrame::deleteRegisters()
{
    const std::vector<int> addresses = collectSelection();
    if (addresses.empty())
        return;
    eraseRegisters(map, addresses);
    refreshMapView(-1);
}

void MainFrame::moveRegisters(bool shoving, MoveDirection direction)
{
    if (refreshing)
        return;
    const std::vector<int> addresses = collectSelection();
    if (addresses.empty())
        return;
    const MoveResult result = moveSlots(map.currentSlots(), addresses, direction, shoving);
    if (map.viewMode == ViewMode::All)
    {
        refreshRows(addresses);
        refreshRows(result.changed);
    }
    else
    {
        refreshMapView(-1);
    }
    reselectAddresses(result.positions);
}

void MainFrame::compressRegisters()
{
    switch (::compressRegisters(map.currentSlots(), collectSelection()))
    {
    case CompressResult::Locked:
        messageBox(compressRefusedText);
        break;
    case CompressResult::Compressed:
        document.validate();
        refreshMapView(-1);
        break;
    case CompressResult::Unchanged:
        refreshMapView(-1);
        break;
    case CompressResult::NothingSelected:
        break;
    }
}

void MainFrame::toggleLocks()
{
    const std::vector<int> addresses = collectSelection();
    if (addresses.empty())
        return;
    ::toggleLocks(map.currentSlots(), addresses);
    refreshMapView(-1);
    reselectAddresses(addresses);
}

void MainFrame::deleteErrorRegisters()
{
    if (messageBox(purgeQuestionText, confirmationCaption, wxYES_NO, this) != wxYES)
        return;
    ::deleteErrorRegisters(map);
    document.validate();
    refreshMapView(-1);
}
