#pragma once

#include "map/DefinitionLine.h"
#include "map/UnvisitedAddresses.h"

#include <array>
#include <vector>

/// Places the objects of a whole definition file, with the result of placing one after the other.
///
/// In a file of overlapping objects every line could write a whole space. Here each slot is written once, by the last
/// object that covers it, and gets each byte-order flag once: the work is that of the lines plus that of the slots.
class DefinitionPlacer
{
public:
    /// @param target  the map that the objects go to
    explicit DefinitionPlacer(RegisterMap& target);

    /// Takes the next object, whose texts have to last until it is placed.
    ///
    /// The map shows it after `placeAll` at the latest.
    void add(const DefinitionObject& object);

    /// Places the objects taken so far.
    void placeAll();

private:
    /// What the objects behind the one being placed have left of a space.
    struct LeftOver
    {
        UnvisitedAddresses slots;
        UnvisitedAddresses swapBytes;
        UnvisitedAddresses swapWords;
        UnvisitedAddresses swapLongs;
    };

    /// Tagname and description of each waiting object, in turn.
    std::vector<InternedText> waitingTexts() const;

    void place(const DefinitionObject& object, const RegisterEntry& values, LeftOver& left);

    RegisterMap& map;
    std::vector<DefinitionObject> waiting;
};
