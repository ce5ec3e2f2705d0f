#pragma once

#include "map/RegisterSlots.h"
#include "map/SlotRuns.h"
#include "memory/LargePages.h"

#include <array>
#include <memory>
#include <vector>

/// Which slots of the current space the map grid shows.
enum class ViewMode : int
{
    All,       ///< every address, used or not
    Expanded,  ///< every used slot
    Compressed ///< heads of used slots only
};

/// The document: four spaces of 65,536 slots, with the copy that tells whether there is anything to save.
///
/// Its slots are allocated once, never resized. Coil and Status spaces hold the same slots as the others and take every
/// data type.
class RegisterMap
{
public:
    /// A map of free slots with a snapshot of free slots.
    RegisterMap();

    /// Frees every slot, shows Holding, empties the clipboard and the error count. View mode and snapshot stay.
    void initialise();

    /// The slots of a space.
    RegisterSlots& slots(RegisterSpace space) { return (*spaces)[static_cast<std::size_t>(space)]; }
    const RegisterSlots& slots(RegisterSpace space) const { return (*spaces)[static_cast<std::size_t>(space)]; }

    /// The slots of the space being shown.
    RegisterSlots& currentSlots() { return slots(currentSpace); }
    const RegisterSlots& currentSlots() const { return slots(currentSpace); }

    /// Sets a slot to the free state.
    /// @param address  0..65535; any other address does nothing
    void clearSlot(RegisterSpace space, int address);

    /// Erases the object whose head is at `address`, or a single continuation slot.
    ///
    /// The tests look at the slot of the current space, whatever space is given: callers that erase in another space
    /// rely on that. A locked slot there refuses. A continuation slot there is cleared alone, in the current space.
    /// A head there clears as many slots as it counts in the given space, at most to 65535; a slot that is not used
    /// clears one.
    /// @param address  0..65535; any other address erases nothing
    /// @return false when the slot is locked or the address is not valid
    bool eraseObject(RegisterSpace space, int address);

    /// Writes `count` copies of `entry` from `start` on, each marked used and given its place in the object.
    ///
    /// Overwrites what the slots held. Registers beyond 65535 are dropped; `registerCount` stays as `entry` has it.
    /// @param start  address of the head, 0..65535
    /// @param count  registers; below 1 places nothing
    void placeObject(RegisterSpace space, int start, const RegisterEntry& entry, int count);

    /// Remembers the present contents as the saved state.
    /// @throws std::bad_alloc when there is not enough memory; the saved state is then what it was
    void takeSnapshot();

    /// True when any field of any slot differs from the snapshot.
    bool isModified() const;

    RegisterSpace currentSpace = RegisterSpace::Holding; ///< the space being shown
    ViewMode viewMode = ViewMode::Compressed;            ///< the rows being shown
    int errorCount = 0;                                  ///< error marks at the last status refresh
    std::vector<RegisterEntry> clipboard;                ///< copied registers, in the order in which they paste

private:
    /// All slots, on large pages where the system has any.
    struct alignas(largePageSize) Spaces : std::array<RegisterSlots, spaceCount>
    {
    };

    static std::unique_ptr<Spaces> freeSpaces();

    std::unique_ptr<Spaces> spaces;
    std::array<SlotRuns, spaceCount> snapshot;
};
