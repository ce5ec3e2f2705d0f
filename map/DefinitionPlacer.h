#pragma once

#include "map/DefinitionLine.h"
#include "map/UnvisitedAddresses.h"

#include <cstddef>
#include <string_view>
#include <vector>

/// Places the objects of a definition file, with the result of placing one after the other.
///
/// In a file of overlapping objects every line could write a whole space. Here each slot is written once, by the last
/// object that covers it, and gets each byte-order flag once: the work is that of the lines plus that of the slots.
class DefinitionPlacer
{
public:
    /// @param target  the map that the objects go to
    /// @param expected  about as many objects are to come: memory for them is taken at once
    explicit DefinitionPlacer(RegisterMap& target, std::size_t expected = 0);

    /// Takes the object of the next line, to be placed over whatever its slots hold, locked or not; a line to be
    /// dropped places nothing.
    ///
    /// Registers outside 0..65535 are left out while the full count is kept. Byte-order flags that the line does not
    /// name stay as the slot had them, and so does what validation found out. The map shows the object after
    /// `placeAll` at the latest.
    /// @param fields  their texts have to last until the object is placed
    /// @return the object taken, or why there is none
    LineMeaning parseDefinitionLine(const DefinitionFields& fields);

    /// Places the objects taken so far.
    void placeAll();

    /// True when the first register of every object placed so far is its own and has the byte order that its line
    /// names. Saving then writes a line for each of them that says the same, and reading these lines gives the same
    /// slots: where an object covers the end of the one before, its line comes after that one's in the saved file too.
    bool allComeBack() const { return comeBack && taken <= mostWaiting; }

private:
    /// As many as there are slots: few enough to keep, and enough for walking over all spaces to carry no weight. When
    /// there are more objects, some of them have a slot in common.
    static constexpr std::size_t mostWaiting = std::size_t{spaceCount} * registersPerSpace;

    /// What the objects after the one being placed have left of a space.
    struct LeftOver
    {
        UnvisitedAddresses slots;
        UnvisitedAddresses swapBytes;
        UnvisitedAddresses swapWords;
        UnvisitedAddresses swapLongs;
    };

    /// Slots that follow each other and go to an object.
    struct SlotRun
    {
        const DefinitionObject* object;
        std::size_t text; ///< index of the tagname in `texts`; the description comes after it
        int first;
        int end; ///< the address after the last one
    };

    void place(const DefinitionObject& object, LeftOver& left);
    bool isOrderItsOwn(const DefinitionObject& object) const;
    void writeSlots();

    RegisterMap& map;
    std::size_t taken = 0;
    bool comeBack = true;
    bool overlapping = false; ///< some object has not got all of its slots
    std::vector<DefinitionObject> waiting;
    std::vector<std::string_view> texts; ///< of the objects that have a slot
    std::vector<SlotRun> runs;
};
