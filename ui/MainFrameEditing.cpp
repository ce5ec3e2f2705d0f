// The editing commands: selection to addresses, one operation of the model, view up to date.
//
// Compress and the purge judge the map again afterwards, because they leave slots whose marks say nothing any more. The
// other commands here carry the marks along with the registers: after a paste or a move the list shows what it showed.
//
// A command that finds nothing to do leaves list and selection as they are; one that rebuilds the list drops the
// selection, because its rows are others then.

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
    // With nothing selected the clipboard is emptied: what is pasted next is never a forgotten copy.
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
    // The rows decide before the addresses do: in an empty list there is nothing to select, and tags go to address 0.
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
    // Unlike paste, append looks for room of its own: where there is none it is not refused, there is just nothing to
    // do.
    if (target && ::appendRegisters(map, *target))
        refreshMapView(-1);
}

void MainFrame::deleteRegisters()
{
    const std::vector<int> addresses = collectSelection();
    if (addresses.empty())
        return;
    // Nothing is asked. What must not go is locked, and stays.
    eraseRegisters(map, addresses);
    refreshMapView(-1);
}

void MainFrame::moveRegisters(bool shoving, MoveDirection direction)
{
    // A key held down arrives while the last step is still being reselected.
    if (refreshing)
        return;
    const std::vector<int> addresses = collectSelection();
    if (addresses.empty())
        return;
    const MoveResult result = moveSlots(map.currentSlots(), addresses, direction, shoving);
    if (map.viewMode == ViewMode::All)
    {
        // Every address keeps its row: repainting those that changed keeps the place in the list.
        refreshRows(addresses);
        refreshRows(result.changed);
    }
    else
    {
        refreshMapView(-1);
    }
    // The moved registers stay selected, so that the next key moves them on.
    reselectAddresses(result.positions);
    followMove(direction);
}

void MainFrame::compressRegisters()
{
    switch (::compressRegisters(map.currentSlots(), collectSelection()))
    {
    case CompressResult::Locked:
        // The range may be long and the lock out of sight.
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
    // The only command that asks: it works on spaces that are not in sight.
    if (messageBox(purgeQuestionText, confirmationCaption, wxYES_NO, this) != wxYES)
        return;
    ::deleteErrorRegisters(map);
    document.validate();
    refreshMapView(-1);
}
