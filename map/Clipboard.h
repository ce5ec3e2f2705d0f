#pragma once

#include "map/RegisterMap.h"

#include <cstddef>
#include <optional>
#include <span>

/// Copying, cutting, deleting, pasting and appending registers of the current space. The clipboard is the map's own.
/// Nothing here validates: copied registers carry their validation results along.

/// Registers that the clipboard keeps at most: one more than a space has can never be placed anyway.
constexpr std::size_t clipboardCapacity = registersPerSpace + 1;

/// What a paste came to.
enum class PasteResult
{
    Pasted,
    NothingToDo, ///< empty clipboard, or no address of the space to paste at
    NoRoom       ///< too few free slots before the next locked one or the end of the space; nothing changed
};

/// Replaces the clipboard by copies of the listed slots, free and locked ones included, in list order.
///
/// A clipboard longer than a space can never be placed, so no more than one register beyond that is kept.
/// @param addresses  none leaves the clipboard as it is; those outside 0..65535 are passed over
void copyRegisters(RegisterMap& map, std::span<const int> addresses);

/// Erases the listed objects and slots in list order; locked ones stay. Nothing moves up to fill the holes.
/// @param addresses  those outside 0..65535 are passed over
void eraseRegisters(RegisterMap& map, std::span<const int> addresses);

/// Copies the listed slots, then erases them; locked ones are copied and stay.
void cutRegisters(RegisterMap& map, std::span<const int> addresses);

/// Where pasting and appending go to: the first selected row, or address 0 when no row is shown at all.
/// @param shownRows          rows of the grid
/// @param selectedAddresses  addresses of the selected rows, in row order
/// @return nothing when rows are shown and none is selected
std::optional<int> insertionTarget(int shownRows, std::span<const int> selectedAddresses);

/// Inserts the whole clipboard from `target` on: the step that pasting and appending share.
/// @param target  0..65535
void insertClipboard(RegisterMap& map, int target);

/// Inserts the clipboard before the object to which the slot at `rowAddress` says that it belongs.
///
/// A slot vacated by a move still names its old head, and the paste lands there.
/// @param rowAddress  address of the first selected row, or 0 when no row is shown; outside 0..65535 nothing happens
PasteResult pasteRegisters(RegisterMap& map, int rowAddress);

/// Inserts the clipboard at the first free slot at or after `rowAddress`, locked or not.
///
/// Does nothing when fewer slots than the clipboard holds lie from there to the end of the space. A locked slot
/// further on may let only the first part of the clipboard in.
/// @param rowAddress  as for pasting
/// @return true when registers were inserted
bool appendRegisters(RegisterMap& map, int rowAddress);
