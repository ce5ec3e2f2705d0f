#include "map/Insertion.h"

#include <algorithm>
#include <optional>

// Registers x, y and z inserted at 12; dots are free slots:
//
//   before   12: A B . C . . D
//   after    12: x y z A B C D        three free slots are used up, what was there keeps its order
//                      |     |
//             writtenEnd 15  displacedEnd 18
//
// The result is that of inserting one register after another, each time pushing the run that is in the way. It is
// planned first and then moved in one go: pushing a long run anew for each register would move billions of slots.

namespace
{

/// How far an insertion gets and what it displaces, found without changing anything.
struct InsertionPlan
{
    int writtenEnd;   ///< one after the last address that gets a new register
    int displacedEnd; ///< one after the last slot that is pushed or pushed into; `writtenEnd` when none is
};

/// The free slot that lets the run at `address` grow by one; nothing when a lock or the end of the space is before it.
std::optional<int> nextFreeSlot(const RegisterSlots& slots, int address)
{
    for (int place = address; place <= lastAddress && !slots[place].locked; ++place)
    {
        if (!slots[place].used)
            return place;
    }
    return std::nullopt;
}

/// Follows the writing of up to `count` registers: each one either takes a free slot as it finds it, or takes the place
/// of a used one and so uses up the next free slot after the displaced run, which always reaches to `displacedEnd`.
InsertionPlan planInsertion(const RegisterSlots& slots, int target, int count)
{
    InsertionPlan plan{target, target};
    for (int i = 0; i < count && plan.writtenEnd <= lastAddress; ++i)
    {
        // Once something is displaced, the slot at `writtenEnd` holds it by then, whatever stands there now.
        const bool nothingDisplaced = plan.displacedEnd == plan.writtenEnd;
        if (nothingDisplaced && !slots[plan.writtenEnd].used)
        {
            ++plan.displacedEnd;
        }
        else
        {
            const std::optional<int> taken = nextFreeSlot(slots, plan.displacedEnd);
            if (!taken)
                break;
            plan.displacedEnd = *taken + 1;
        }
        ++plan.writtenEnd;
    }
    return plan;
}

/// Gathers the used slots before `displacedEnd` at its end, in their order, until they reach down to `writtenEnd`.
void pushDisplaced(RegisterSlots& slots, const InsertionPlan& plan)
{
    // From the end, where the last free slot is: so each slot is read before it is written over.
    int from = plan.displacedEnd - 1;
    for (int place = plan.displacedEnd - 1; place >= plan.writtenEnd; --place, --from)
    {
        while (!slots[from].used)
            --from;
        slots[place] = shifted(slots[from], static_cast<std::uint32_t>(place - from));
    }
}

} // namespace

int makeRoom(RegisterSlots& slots, int target, int count)
{
    if (!RegisterSlots::contains(target))
        return 0;
    const InsertionPlan plan = planInsertion(slots, target, count);
    pushDisplaced(slots, plan);
    return plan.writtenEnd - target;
}

void insertRegisters(RegisterSlots& slots, std::span<const RegisterEntry> elements, int target)
{
    const auto wanted = static_cast<int>(std::min<std::size_t>(elements.size(), registersPerSpace));
    const int end = target + makeRoom(slots, target, wanted);
    // The same distance for both of a register's addresses, which keeps its place inside its object.
    auto element = elements.begin();
    for (int address = target; address < end; ++address, ++element)
        slots[address] = shifted(*element, static_cast<std::uint32_t>(address) - element->address);
}
