// The map grid: what it shows and what is selected in it.
//
// Rows are never edited. After a command the list of addresses is made anew and the grid told how many rows there are;
// what they say is asked for when they are painted. This drops the selection, so commands that are repeated on the same
// registers (moves, locks) select them again by address.

#include "map/MapView.h"
#include "map/Selection.h"
#include "map/Validation.h"
#include "ui/MainFrame.h"
#include "ui/NamedImages.h"
#include "ui/SpaceButtons.h"
#include "ui/Theme.h"
#include "ui/ToolkitText.h"
#include "ui/grid/GridScrolling.h"
#include "ui/grid/GridSelection.h"
#include "ui/grid/MapGridTable.h"

#include <wx/bmpbuttn.h>
#include <wx/grid.h>
#include <wx/stattext.h>

#include <algorithm>

void MainFrame::refreshMapView(int scrollAddress)
{
    refreshing = true;
    // While it is exchanged the list is half old and half new; keys that arrive now are dropped.
    mapTable->show(shownAddresses(map.currentSlots(), map.viewMode));
    if (scrollAddress >= 0 && mapTable->GetNumberRows() > 0)
    {
        // An address that is not listed leads to the first row.
        const int row = mapTable->rowOf(scrollAddress).value_or(0);
        scrollToTop(*mapGrid, row);
        // Rows are exchanged under the cursor; without this the next arrow key would jump to where it was before.
        setCursorWithoutScrolling(*mapGrid, row);
    }
    refreshing = false;
    showViewMode();
}

void MainFrame::showViewMode()
{
    const wxString text = toolkitText(viewModeLabel(map.viewMode));
    // Its neighbour shares the line, so a change lays the line out again; that is spared after every other command.
    if (viewLabel->GetLabelText() == text)
        return;
    viewLabel->SetLabelText(text);
    viewLabel->GetParent()->Layout();
}

void MainFrame::refreshRows(const std::vector<int>& addresses)
{
    // Rows answer from the map when they are painted; asking for the stretch that holds them all costs one repaint.
    std::optional<int> first;
    std::optional<int> last;
    for (const int address : addresses)
    {
        const std::optional<int> row = mapTable->rowOf(address);
        if (!row)
            continue;
        first = std::min(first.value_or(*row), *row);
        last = std::max(last.value_or(*row), *row);
    }
    if (first)
        mapGrid->RefreshBlock(*first, 0, *last, mapGrid->GetNumberCols() - 1);
}

void MainFrame::selectSpace(RegisterSpace space)
{
    map.currentSpace = space;
    showSpaceButtons();
    // Another space has other addresses, so the list starts at its beginning. The view mode stays.
    refreshMapView(0);
}

void MainFrame::showSpaceButtons()
{
    for (const SpaceButton& button : spaceButtonOrder)
    {
        const wxString image = button.image;
        const bool shown = button.space == map.currentSpace;
        // The plain picture is exchanged, since a button of the desktop looks pressed only as long as it is.
        wxBitmapButton& control = *spaceButtons[static_cast<std::size_t>(button.space)];
        control.SetBitmapLabel(namedImage(shown ? image + "_pressed" : image));
        // Toolkit 3.2 drops it on Windows with the plain one.
        control.SetBitmapPressed(namedImage(image + "_pressed"));
    }
}

void MainFrame::toggleView()
{
    map.viewMode = nextViewMode(map.viewMode);
    refreshMapView(-1);
}

void MainFrame::refreshStatus()
{
    map.errorCount = countErrors(map);
    // Called once a second for as long as the window is open: nothing is painted unless the number is another one.
    if (shownErrorCount == map.errorCount)
        return;
    shownErrorCount = map.errorCount;
    statusLabel->SetForegroundColour(theme::colour(map.errorCount > 0 ? theme::statusWarning : theme::statusGood));
    statusLabel->SetLabel(toolkitText(statusText(map.errorCount)));
}

std::vector<int> MainFrame::selectedAddresses() const
{
    std::vector<int> addresses = selectedRows(*mapGrid);
    std::transform(addresses.begin(), addresses.end(), addresses.begin(),
                   [this](int row) { return mapTable->addressOf(row); });
    return addresses;
}

std::vector<int> MainFrame::collectSelection() const
{
    return ::collectSelection(map.currentSlots(), selectedAddresses());
}

void MainFrame::reselectAddresses(std::vector<int> addresses)
{
    refreshing = true;
    // Results of a move come in the order of moving.
    std::sort(addresses.begin(), addresses.end());
    std::vector<int> rows;
    for (const int address : addresses)
    {
        const std::optional<int> row = mapTable->rowOf(address);
        // Continuation registers have no row in the compressed list, and an address may be listed twice.
        if (row && (rows.empty() || rows.back() < *row))
            rows.push_back(*row);
    }
    mapGrid->ClearSelection();
    addToSelection(*mapGrid, rows);
    if (!addresses.empty() && mapTable->rowOf(addresses.front()))
        setCursorWithoutScrolling(*mapGrid, rows.front());
    refreshing = false;
}

void MainFrame::followMove(MoveDirection direction)
{
    const std::vector<int> rows = selectedRows(*mapGrid);
    // The end that moves ahead stays in sight while a key is held down.
    if (!rows.empty())
        bringIntoView(*mapGrid, direction == MoveDirection::Up ? rows.front() : rows.back());
}

void MainFrame::selectAllRegisters()
{
    // As one block: by single rows it would take time in the longest list.
    mapGrid->SelectAll();
}

void MainFrame::OnTimer(wxTimerEvent&)
{
    refreshStatus();
}
