// Any bytes as a sequence of editing commands, compared with the literal model after each command. The first two bytes
// choose the map.

#include "fuzz/Require.h"
#include "tests/core/Rehearsal.h"

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace
{

/// The four spaces before a command.
class SlotsBefore
{
public:
    void remember(const RegisterMap& map)
    {
        for (const RegisterSpace space : allSpaces)
            (*slots)[static_cast<std::size_t>(space)] = map.slots(space);
    }

    /// True when every locked slot for which the rule holds is what it was.
    bool haveLocksHeld(const RegisterMap& map, LockedSlots rule) const
    {
        if (rule == LockedSlots::MayChange)
            return true;
        for (const RegisterSpace space : allSpaces)
        {
            const RegisterSlots& now = map.slots(space);
            for (const RegisterEntry& old : (*slots)[static_cast<std::size_t>(space)])
            {
                const bool mustStay = old.locked && (old.used || rule == LockedSlots::Stay);
                if (mustStay && now[static_cast<int>(old.address)] != old)
                    return false;
            }
        }
        return true;
    }

private:
    std::unique_ptr<std::array<RegisterSlots, spaceCount>> slots =
        std::make_unique<std::array<RegisterSlots, spaceCount>>();
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    // Kept from input to input: beginning a sequence frees what the one before has touched, in map and model alike.
    static Rehearsal rehearsal;
    static SlotsBefore before;
    constexpr std::size_t mapBytes = 2;
    if (size < mapBytes)
        return 0;
    const std::uint32_t mapNumber = std::uint32_t{bytes[0]} << 8U | bytes[1];
    rehearsal.begin(Chance(mapNumber), Chance(std::span(bytes, size).subspan(mapBytes)));
    while (!rehearsal.isOver())
    {
        before.remember(rehearsal.map);
        const std::string difference = rehearsal.step();
        require(difference.empty(), difference.c_str());
        requireSoundSlots(rehearsal.map);
        require(before.haveLocksHeld(rehearsal.map, rehearsal.lockedSlots()), "a locked slot stays as it is");
    }
    const std::string difference = rehearsal.differenceAnywhere();
    require(difference.empty(), difference.c_str());
    return 0;
}
