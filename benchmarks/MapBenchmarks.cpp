// What a command does to the whole map: validating, comparing, remembering, purging, replacing.

#include "benchmarks/Benchmarks.h"
#include "benchmarks/FullSize.h"
#include "benchmarks/Measure.h"
#include "map/ErrorPurge.h"
#include "map/TagnameReplace.h"
#include "map/Validation.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <numeric>

namespace
{

bool isKnown(const RegisterEntry& slot)
{
    return slot.tagIndex >= 0;
}

using Fill = void (*)(RegisterMap&);

/// The slots of all four spaces, as one copy of memory sees them.
using Spaces = std::array<RegisterSlots, spaceCount>;

std::unique_ptr<Spaces> copyOfAll(const RegisterMap& map)
{
    auto copy = std::make_unique<Spaces>();
    for (const RegisterSpace space : allSpaces)
        (*copy)[static_cast<std::size_t>(space)] = map.slots(space);
    return copy;
}

void restore(RegisterMap& map, const Spaces& copy)
{
    for (const RegisterSpace space : allSpaces)
        map.slots(space) = copy[static_cast<std::size_t>(space)];
}

void validate(benchmark::State& state, Fill fill)
{
    const TagTable tags = fullTags();
    RegisterMap map;
    fill(map);
    measure(state, [&] { validateMap(map, tags); });
    if (!std::ranges::all_of(map.currentSlots(), isKnown))
        state.SkipWithError("a tag of the plant is not found");
}

void readEverySlot(benchmark::State& state, Fill fill)
{
    RegisterMap map;
    fill(map);
    measure(state,
            [&]
            {
                std::uint64_t sum = 0;
                for (const RegisterSpace space : allSpaces)
                {
                    for (const RegisterEntry& slot : map.slots(space))
                        sum += slot.registerCount;
                }
                benchmark::DoNotOptimize(sum);
            });
}

void compareWithSnapshot(benchmark::State& state)
{
    RegisterMap map;
    fillWithObjects(map);
    map.takeSnapshot();
    measure(state, [&] { benchmark::DoNotOptimize(map.isModified()); });
}

void compareMemory(benchmark::State& state)
{
    RegisterMap map;
    fillWithObjects(map);
    const auto one = copyOfAll(map);
    const auto other = copyOfAll(map);
    measure(state, [&] { benchmark::DoNotOptimize(std::memcmp(one.get(), other.get(), sizeof(Spaces))); });
}

void remember(benchmark::State& state)
{
    RegisterMap map;
    fillWithObjects(map);
    measure(state,
            [&]
            {
                map.takeSnapshot();
                benchmark::ClobberMemory();
            });
}

void copyMemory(benchmark::State& state)
{
    RegisterMap map;
    fillWithObjects(map);
    const auto from = copyOfAll(map);
    const auto to = copyOfAll(map);
    measure(state,
            [&]
            {
                std::memcpy(to.get(), from.get(), sizeof(Spaces));
                benchmark::DoNotOptimize(to.get());
                benchmark::ClobberMemory();
            });
}

void purge(benchmark::State& state)
{
    const TagTable noTags;
    RegisterMap map;
    fillWithSingleRegisters(map);
    validateMap(map, noTags);
    const auto inError = copyOfAll(map);
    measure(
        state, [&] { restore(map, *inError); },
        [&]
        {
            deleteErrorRegisters(map);
            validateMap(map, noTags);
        });
    if (map.currentSlots()[0].used)
        state.SkipWithError("a register in error is left");
}

void validateInError(benchmark::State& state)
{
    const TagTable noTags;
    RegisterMap map;
    fillWithSingleRegisters(map);
    measure(state, [&] { validateMap(map, noTags); });
}

/// A text that gives names which no round before has made.
std::string unseenReplacement()
{
    static int made = 0;
    return "_" + std::to_string(++made) + "_";
}

/// Puts another text in the place of every "_" in the names of one space; each of the 65,536 names has two.
class ReplaceEverywhere
{
public:
    ReplaceEverywhere() : addresses(registersPerSpace)
    {
        std::iota(addresses.begin(), addresses.end(), 0);
        fillWithSingleRegisters(map);
        original = copyOf(map.currentSlots());
    }

    void restoreNames() { map.currentSlots() = *original; }

    void replaceAndValidate(std::string_view replacement)
    {
        replaceInTagnames(map.currentSlots(), addresses, "_", replacement);
        validateMap(map, tags);
    }

    bool isDone() const { return std::ranges::none_of(map.currentSlots(), isKnown); }

private:
    TagTable tags = fullTags();
    RegisterMap map;
    std::vector<int> addresses;
    std::unique_ptr<RegisterSlots> original;
};

void replaceByNewNames(benchmark::State& state)
{
    ReplaceEverywhere names;
    std::string replacement;
    measureApart(
        state,
        [&]
        {
            names.restoreNames();
            replacement = unseenReplacement();
        },
        [&] { names.replaceAndValidate(replacement); }, [&] { return names.isDone(); });
}

void replaceByKnownNames(benchmark::State& state)
{
    ReplaceEverywhere names;
    measure(
        state, [&] { names.restoreNames(); }, [&] { names.replaceAndValidate("-"); });
    if (!names.isDone())
        state.SkipWithError("a tagname is as it was");
}

} // namespace

void addMapBenchmarks(RatioTable& table)
{
    const auto validateObjects = [](benchmark::State& state) { validate(state, fillWithObjects); };
    const auto readObjects = [](benchmark::State& state) { readEverySlot(state, fillWithObjects); };
    const auto validateSingles = [](benchmark::State& state) { validate(state, fillWithSingleRegisters); };
    const auto readSingles = [](benchmark::State& state) { readEverySlot(state, fillWithSingleRegisters); };

    table.add({.work = "validateMap, 65,536 objects", .yardstick = "read every slot", .ratio = 10}, 20, validateObjects,
              readObjects);
    table.add({.work = "validateMap, 262,144 objects", .yardstick = "read every slot", .ratio = 10}, 20,
              validateSingles, readSingles);
    table.add({.work = "isModified on equal maps", .yardstick = "memcmp of the arrays", .ratio = 3}, 20,
              compareWithSnapshot, compareMemory);
    table.add({.work = "takeSnapshot", .yardstick = "memcpy of the arrays", .ratio = 2}, 20, remember, copyMemory);
    table.add({.work = "purge a full map in error", .yardstick = "validateMap of that map", .ratio = 5}, 10, purge,
              validateInError);
    table.add({.work = "replace in 65,536 tagnames", .yardstick = "validateMap of that map", .ratio = 5}, 10,
              replaceByKnownNames, validateSingles);
    table.add({.work = "the same, giving names never used before", .yardstick = "validateMap of that map", .ratio = 5},
              5, replaceByNewNames, validateSingles);
}
