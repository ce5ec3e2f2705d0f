#pragma once

#include "map/RegisterMap.h"

#include <span>
#include <vector>

/// Moving and shoving registers inside one space. Up is towards address 0, down towards address 65535.

/// Which way a command moves its registers.
enum class MoveDirection
{
    Up,
    Down
};

/// What a move did, for the caller that repaints and reselects.
struct MoveResult
{
    std::vector<int> positions; ///< where each listed slot ended, in processing order
    std::vector<int> changed;   ///< every address written, for repainting
};

/// Moves slots of one space one place each, all of them the same way; lasts for one command.
///
/// A slot is stuck when the used slots in its way end at a lock or at the end of the space. No shove of the same
/// command frees it again, because the slots that hold it back are stuck themselves. The mover remembers them: without
/// that, each of 30,000 selected slots before a locked run would look through the whole run.
class SlotMover
{
public:
    /// @param space  outlives the mover
    SlotMover(RegisterSlots& space, MoveDirection direction, bool mayShove);

    /// Moves the slot at `address` one place; when shoving, pushes the run of used slots in its way along.
    ///
    /// All or nothing: a run that meets a locked slot or the end of the space stays as it was. The vacated slot keeps
    /// its old contents and only stops being used; readers look at `used` first. Whether the slot itself is used is not
    /// looked at: moving a free slot copies it as it stands.
    /// @param address  0..65535; any other address does not move
    /// @param changed  gets every address written to, the farthest first
    /// @return false when nothing moved
    bool moveSlot(int address, std::vector<int>& changed);

    /// How far a moved slot goes: 1 down, -1 up.
    int stepLength() const { return step; }

private:
    int endOfRun(int address) const;
    bool mayBePushed(int address) const;
    void markStuck(int first, int end);
    void pushRun(int first, int freePlace, std::vector<int>& changed);

    RegisterSlots& slots;
    int step;
    bool shoving;
    std::vector<bool> stuck; ///< by address; a plain move looks one place ahead and never asks
};

/// Moves every listed slot one place, beginning at the end of the list that is nearer to where it goes.
///
/// A slot that cannot move stays, and keeps back the slots after it that would need its place. Listing the slots of
/// whole objects in ascending order therefore moves whole objects.
/// @param addresses  in any order, repeats allowed; addresses outside 0..65535 do not move
/// @return the positions, last listed slot first when moving down, first listed slot first when moving up
MoveResult moveSlots(RegisterSlots& slots, std::span<const int> addresses, MoveDirection direction, bool shoving);
