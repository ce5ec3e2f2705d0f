#pragma once

#include "map/RegisterMap.h"
#include "tests/core/Chance.h"
#include "tests/core/LiteralModel.h"

#include <string>
#include <vector>

/// Addresses around which a sequence of commands plays: a stretch at the start, in the middle or at the end of a space.
struct Stretch
{
    int first;
    int length;

    int last() const { return first + length - 1; }
};

/// What a command may do to locked slots; the exceptions are settled command by command.
enum class LockedSlots
{
    Stay,         ///< none changes
    StayWhenUsed, ///< a free one may be taken
    MayChange     ///< locking, erasing by an unlocked head, resetting an edited object, compressing past the end
};

/// A map and its literal model, put through the same commands by chance.
class Rehearsal
{
public:
    /// Begins a sequence.
    /// @param forMap       makes the map, the same in both
    /// @param forCommands  decides which commands are given and to which rows
    void begin(Chance forMap, Chance forCommands);

    /// True when nothing is left to decide by.
    bool isOver() const { return chance.isSpent(); }

    /// Gives both one command.
    /// @return what went differently; empty when nothing did
    std::string step();

    /// What the command of the last step may do to locked slots of any space.
    LockedSlots lockedSlots() const { return locks; }

    /// Compares every slot of the four spaces.
    std::string differenceAnywhere() const { return difference(false); }

    RegisterMap map;

private:
    RegisterSlots& slotsOf(int space) { return map.slots(static_cast<RegisterSpace>(space)); }

    void clearBoth();
    void fillSpace(int space);
    RegisterEntry randomObject();
    void disturb(RegisterEntry& slot);
    int randomAddress();
    std::vector<int> randomRows();
    std::vector<int> randomAddresses();

    std::string copyOrErase();
    std::string paste();
    std::string append();
    std::string moveSome();
    std::string compress();
    std::string toggle();
    std::string replace();
    std::string edit();
    std::string purge();
    std::string changeSpace();

    std::string verdict(bool sameAnswer, const std::string& command) const;
    std::string difference(bool touchedOnly) const;

    LiteralModel model;
    Chance chance{0};
    Stretch stretch{0, 1};
    LockedSlots locks = LockedSlots::Stay;
    bool selectionDiffers = false;
};
