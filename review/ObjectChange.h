#pragma once

#include "map/RegisterEntry.h"
#include "map/RegisterSpace.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

/// What may have become of an object between two maps, in the order in which reports name it.
enum class ChangeKind : std::uint8_t
{
    Added,
    Removed,
    Moved,       ///< same tagname and type at another address
    Retyped,     ///< another type
    Resized,     ///< another number of registers
    Overwritten, ///< another object has taken registers of it
    Uncovered,   ///< it has registers again that another object had taken
    ByteOrder,   ///< other swap flags
    Write,       ///< the master may write it now, or may no more
    Description, ///< other words
    Lock         ///< locked or unlocked
};

/// An object of a map: where it is and what its head says.
struct MapObject
{
    RegisterSpace space = RegisterSpace::Coil;
    RegisterEntry head;
    bool isLengthKnown = true; ///< false for some texts, which then count one register
};

/// An object that is not the same in two maps.
struct ObjectChange
{
    std::optional<MapObject> before;                           ///< nothing when it was added
    std::optional<MapObject> after;                            ///< nothing when it was removed
    std::vector<ChangeKind> kinds;                             ///< at least one, ascending
    std::optional<std::uint32_t> overwrittenAt = std::nullopt; ///< first register of it that another object has taken
    std::optional<std::uint32_t> uncoveredAt = std::nullopt;   ///< first register of it that it has again

    /// The object where it is now, or where it was when it is gone.
    const MapObject& object() const { return after ? *after : *before; }

    /// True when a master that polls the old map would notice.
    bool isBreaking() const;

    /// True when the object was locked: nothing of it should have changed, its lock included.
    bool breaksLock() const { return before && before->head.locked; }
};

/// The word for a change in reports, such as "byte order".
std::string_view changeName(ChangeKind kind);

/// True for a change that a polling master notices: address, type, size, registers that another object took or gave
/// back, byte order, write permission, an object that is gone. A new object is at an address that it does not poll yet.
bool isBreaking(ChangeKind kind);
