#pragma once

#include "map/RegisterMap.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The rules of the register editor: which object is edited, how large it may become, and what a confirmed edit does.

/// The object to edit for a row of the map grid: the head that the walk back from a register of the object reaches.
/// @param rowAddress  address in the row
/// @return address of the head or free slot, 0..65535; nothing when it is locked or `rowAddress` is not an address
std::optional<int> editedHead(const RegisterSlots& slots, int rowAddress);

/// What the editor shows for a head: the object's fields, or those of a free slot where no object stands, whatever a
/// move has left there.
/// @param head  0..65535
RegisterEntry editedEntry(const RegisterSlots& slots, int head);

/// How many registers an edited object may take. Both figures include its present count, which is 1 for a free slot,
/// and end at 2147483647.
struct EditRoom
{
    std::int32_t freeRoom = 0;    ///< without disturbing any other object
    std::int32_t movableRoom = 0; ///< when the objects after it are moved down, up to a lock or the end of the space
};

/// The room for the object whose head is at `head`; slots beyond the end of the space count as none.
/// @param head  0..65535
EditRoom editRoom(const RegisterSlots& slots, int head);

/// Whether a length fits into the room.
enum class SpaceCheck
{
    Fits,
    FitsByMoving, ///< fits once the following objects are moved down
    TooLong
};

/// Reads the editor's length field: blanks, a sign and digits, and nothing after them.
/// @return the number, or the nearest that 32 bits hold; nothing when the text is not a whole number
std::optional<std::int32_t> parseLength(std::string_view text);

/// Compares a length with the room; taking the room to the last register fits.
/// @param lengthText  registers, as typed: a text that is not a number counts as 1, negative numbers fit here and are
///                    refused on confirmation
SpaceCheck checkSpace(std::string_view lengthText, EditRoom room);

/// What confirming the editor comes to.
enum class EditConfirmation
{
    Apply,
    Cancel,  ///< an object without a tagname is not applied
    NoLength ///< the object would have no registers; the editor stays open
};

/// Judges a confirmed edit.
/// @param tagname     only the empty text is not a tagname; blanks are one
/// @param lengthText  registers, as typed: a text that is not a number counts as 0
EditConfirmation confirmEdit(std::string_view tagname, std::string_view lengthText);

/// What the editor shows for a type.
struct FieldVisibility
{
    bool lengthLabel = false;
    std::optional<bool> lengthField; ///< nothing leaves the field as it is: DOUBLE does not touch it
    bool byteOrder = false;          ///< the label "Byte Order" and the help button
    bool SwapBytes = false;
    bool SwapWords = false;
    bool SwapLongs = false;

    friend bool operator==(const FieldVisibility&, const FieldVisibility&) = default;
};

/// The fields shown for a type name.
/// @return nothing for a text that names no type, which leaves every field as it is
std::optional<FieldVisibility> visibilityFor(std::string_view typeName);

/// The contents of the editor when an edit is confirmed.
struct EditedRegister
{
    std::string tagname;
    std::string description;
    std::string typeName; ///< as typed; a text that names no type gives INT16
    bool write = false;
    bool SwapBytes = false;
    bool SwapWords = false;
    bool SwapLongs = false;
    std::int32_t registerCount = 1; ///< registers; below 1 nothing takes the old object's place
};

/// Puts the edited object in the place of the one at `head` of the current space and moves what follows down as far as
/// it has to.
///
/// All slots of the old object are freed first, or the one free slot that stands there. Byte-order flags that the type
/// cannot carry are dropped. Registers beyond 65535 are dropped while the count stays; where a lock stops the moving,
/// the registers written so far stay. Validation is left to the caller.
/// @param head  0..65535, not locked; any other address does nothing
void applyEdit(RegisterMap& map, int head, const EditedRegister& edited);
