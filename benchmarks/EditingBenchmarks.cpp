// The editing operations of the model that shift many registers.

#include "benchmarks/Benchmarks.h"
#include "benchmarks/FullSize.h"
#include "benchmarks/Measure.h"
#include "map/Clipboard.h"
#include "map/Compress.h"
#include "map/RegisterMoves.h"

#include <algorithm>
#include <numeric>

namespace
{

constexpr int longRun = 30000;
constexpr int gap = 1000;

std::vector<int> addressesFrom(int first, int count)
{
    std::vector<int> addresses(static_cast<std::size_t>(count));
    std::iota(addresses.begin(), addresses.end(), first);
    return addresses;
}

/// Frees a stretch of the current space.
void freeRange(RegisterMap& map, int first, int count)
{
    clearSlots(map.currentSlots(), first, static_cast<std::uint32_t>(count));
}

void expect(benchmark::State& state, bool done)
{
    if (!done)
        state.SkipWithError("the command did not do its work");
}

void copySlots(benchmark::State& state, int count)
{
    RegisterMap map;
    fillWithSingleRegisters(map);
    const auto copy = copyOf(map.currentSlots());
    measure(state,
            [&]
            {
                std::copy_n(map.currentSlots().begin(), count, copy->begin());
                benchmark::DoNotOptimize(copy.get());
                benchmark::ClobberMemory();
            });
}

/// Measures `command` on the current space of `map` as it is now, again and again.
template <class F>
void measureOn(benchmark::State& state, RegisterMap& map, F command)
{
    const auto original = copyOf(map.currentSlots());
    measure(
        state, [&] { map.currentSlots() = *original; }, command);
}

void pasteInFrontOfRun(benchmark::State& state)
{
    RegisterMap map;
    fillWithSingleRegisters(map);
    copyRegisters(map, addressesFrom(0, longRun));
    freeRange(map, longRun, registersPerSpace - longRun);
    measureOn(state, map, [&] { benchmark::DoNotOptimize(pasteRegisters(map, 0)); });
    expect(state, map.currentSlots()[2 * longRun - 1].used && !map.currentSlots()[2 * longRun].used);
}

void moveBlockDown(benchmark::State& state)
{
    RegisterMap map;
    fillWithSingleRegisters(map);
    freeRange(map, longRun, registersPerSpace - longRun);
    const std::vector<int> block = addressesFrom(0, longRun);
    measureOn(state, map,
              [&] { benchmark::DoNotOptimize(moveSlots(map.currentSlots(), block, MoveDirection::Down, false)); });
    expect(state, !map.currentSlots()[0].used && map.currentSlots()[longRun].used);
}

/// @param pushed  registers of the block that is shoved
void shoveThroughRun(benchmark::State& state, int pushed)
{
    RegisterMap map;
    fillWithSingleRegisters(map);
    freeRange(map, pushed + longRun, gap);
    const std::vector<int> block = addressesFrom(0, pushed);
    measureOn(state, map,
              [&] { benchmark::DoNotOptimize(moveSlots(map.currentSlots(), block, MoveDirection::Down, true)); });
    expect(state, !map.currentSlots()[0].used && map.currentSlots()[pushed + longRun].used);
}

void compressHalfFull(benchmark::State& state)
{
    RegisterMap map;
    fillWithSingleRegisters(map);
    for (int address = 0; address < registersPerSpace; address += 2)
        freeRange(map, address, 1);
    const std::vector<int> whole = addressesFrom(0, registersPerSpace);
    measureOn(state, map, [&] { benchmark::DoNotOptimize(compressRegisters(map.currentSlots(), whole)); });
    expect(state, map.currentSlots()[0].used && !map.currentSlots()[registersPerSpace / 2].used);
}

} // namespace

void addEditingBenchmarks(RatioTable& table)
{
    const auto copyBoth = [](benchmark::State& state) { copySlots(state, 2 * longRun); };
    const auto copySpace = [](benchmark::State& state) { copySlots(state, registersPerSpace); };
    const auto shoveOne = [](benchmark::State& state) { shoveThroughRun(state, 1); };
    const auto shoveBlock = [](benchmark::State& state) { shoveThroughRun(state, longRun); };
    const std::string aSpace = "copy of one space";

    table.add({.work = "paste 30,000 in front of 30,000", .yardstick = "copy of 60,000 slots", .ratio = 20}, 20,
              pasteInFrontOfRun, copyBoth);
    table.add({.work = "move 30,000 down", .yardstick = aSpace, .ratio = 20}, 20, moveBlockDown, copySpace);
    table.add({.work = "shove one through 30,000", .yardstick = aSpace, .ratio = 20}, 20, shoveOne, copySpace);
    table.add({.work = "shove 30,000 through 30,000", .yardstick = aSpace, .ratio = 20}, 20, shoveBlock, copySpace);
    table.add({.work = "compress a space half full", .yardstick = aSpace, .ratio = 20}, 20, compressHalfFull,
              copySpace);
}
