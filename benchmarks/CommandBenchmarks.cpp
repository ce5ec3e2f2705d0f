// Commands on 65,536 rows, from the key or button to the updated view, in the program's own main window.

#include "benchmarks/Benchmarks.h"
#include "benchmarks/DrivenFrame.h"
#include "benchmarks/FullSize.h"
#include "benchmarks/Measure.h"

#include <wx/grid.h>

namespace
{

using Drive = void (*)(DrivenFrame&);

void selectEverySecondRow(DrivenFrame& frame)
{
    for (int row = 0; row < frame.mapRows().GetNumberRows(); row += 2)
        frame.mapRows().SelectRow(row, true);
}

/// @param prepare  brings the selection about, not measured; the map is as it was at the start by then
Measurement driving(Drive prepare, Drive command)
{
    return [=](benchmark::State& state)
    {
        FrameOnScreen frame;
        frame->showAllRegisters();
        RegisterSlots& slots = frame->registerMap().currentSlots();
        fillWithSingleRegisters(frame->registerMap());
        const auto original = copyOf(slots);
        measure(
            state,
            [&]
            {
                slots = *original;
                frame->mapRows().ClearSelection();
                prepare(*frame);
                handleEvents();
            },
            [&] { command(*frame); });
    };
}

void copySpace(benchmark::State& state)
{
    RegisterMap map;
    fillWithObjects(map);
    const auto copy = copyOf(map.currentSlots());
    measure(state,
            [&]
            {
                *copy = map.currentSlots();
                benchmark::DoNotOptimize(copy.get());
                benchmark::ClobberMemory();
            });
}

void selectNothing(DrivenFrame&) {}

void selectAll(DrivenFrame& frame)
{
    frame.pressControl('A');
}

void copySelection(DrivenFrame& frame)
{
    frame.pressControl('C');
}

void cutSelection(DrivenFrame& frame)
{
    frame.pressControl('X');
}

void deleteSelection(DrivenFrame& frame)
{
    frame.press(WXK_DELETE);
}

void toggleLocks(DrivenFrame& frame)
{
    frame.click("Toggle register lock");
}

void copyAll(DrivenFrame& frame)
{
    selectAll(frame);
    copySelection(frame);
}

void cutAll(DrivenFrame& frame)
{
    selectAll(frame);
    cutSelection(frame);
}

void deleteAll(DrivenFrame& frame)
{
    selectAll(frame);
    deleteSelection(frame);
}

void cutAllAndPaint(DrivenFrame& frame)
{
    cutAll(frame);
    paintNow(*frame.mapRows().GetGridWindow());
}

} // namespace

void addCommandBenchmarks(RatioTable& table)
{
    constexpr double quick = 50;
    constexpr double bearable = 100;
    constexpr int rounds = 10;
    constexpr int fewRounds = 3;
    const std::string aSpace = "copy of one space";

    const auto addAll = [&](const char* work, Drive command)
    {
        table.add({.work = work, .yardstick = aSpace, .ratio = 20, .milliseconds = quick}, rounds,
                  driving(selectNothing, command), copySpace);
    };
    addAll("Ctrl+A and copy, ALL", copyAll);
    addAll("Ctrl+A and cut, ALL", cutAll);
    addAll("Ctrl+A and delete, ALL", deleteAll);
    table.add({.work = "Ctrl+A and cut, ALL, painted", .yardstick = aSpace}, rounds,
              driving(selectNothing, cutAllAndPaint), copySpace);

    const auto addScattered = [&](const char* work, Drive command)
    {
        table.add({.work = work, .yardstick = aSpace, .milliseconds = bearable}, fewRounds,
                  driving(selectEverySecondRow, command), copySpace);
    };
    addScattered("copy of every second row, ALL", copySelection);
    addScattered("cut of every second row, ALL", cutSelection);
    addScattered("delete of every second row, ALL", deleteSelection);

    table.add({.work = "lock toggle and reselect, ALL", .yardstick = aSpace, .milliseconds = quick}, rounds,
              driving(selectAll, toggleLocks), copySpace);
}
