// What a user does again and again: typing into the filter, scrolling, holding a key down; from event to painted view.

#include "benchmarks/Benchmarks.h"
#include "benchmarks/DrivenFrame.h"
#include "benchmarks/FullSize.h"
#include "benchmarks/Measure.h"

#include <wx/grid.h>

namespace
{

/// Registers that are moved while a key is held down.
constexpr int movedRows = 30000;

void filterToPaintedGrid(benchmark::State& state)
{
    FrameOnScreen frame(mapOfObjects());
    measure(
        state,
        [&]
        {
            frame->filterBy("");
            handleEvents();
        },
        [&]
        {
            frame->filterBy("flow");
            paintNow(*frame->tagRows().GetGridWindow());
        });
    if (frame->tagRows().GetNumberRows() != 65536 / 8)
        state.SkipWithError("another number of rows is shown");
}

/// Types a word letter by letter and takes it back, again and again.
void typeIntoFilter(benchmark::State& state)
{
    const wxString word = "pump*flow";
    const std::size_t length = word.length();
    FrameOnScreen frame(mapOfObjects());
    std::size_t events = 0;
    measure(state, handleEvents,
            [&]
            {
                const std::size_t step = ++events % (2 * length);
                frame->filterBy(word.substr(0, step <= length ? step : 2 * length - step));
                paintNow(*frame->tagRows().GetGridWindow());
            });
}

/// Holds a key down in the map grid, which shows every register.
/// @param selected  rows from the first one on that are selected; 1,000 registers after the moved ones are free
Measurement holding(int key, int selected)
{
    return [=](benchmark::State& state)
    {
        FrameOnScreen frame(mapOfSingleRegisters());
        wxGrid& rows = frame->mapRows();
        frame->showAllRegisters();
        frame->selectRows(movedRows, movedRows + 999);
        frame->deleteRegisters();
        rows.GoToCell(0, 0);
        if (selected > 0)
            frame->selectRows(0, selected - 1);
        measure(state, handleEvents,
                [&]
                {
                    frame->press(key);
                    paintNow(*rows.GetGridWindow());
                });
        const bool moved = selected == 0 || !frame->registers().currentSlots()[0].used;
        if (rows.GetGridCursorRow() == 0 || !moved)
            state.SkipWithError("the key did nothing");
    };
}

} // namespace

void addViewBenchmarks(ResultTable& table)
{
    const auto addEvents = [&](const char* work, const Measurement& measurement) {
        table.add({.work = work, .measurement = measurement, .rounds = 200, .events = true, .milliseconds = frameTime});
    };
    table.add({.work = "filter to painted grid", .measurement = filterToPaintedGrid, .milliseconds = frameTime});
    addEvents("type into the filter, 200 letters", typeIntoFilter);
    addEvents("scroll 200 pages, ALL", holding(WXK_PAGEDOWN, 0));
    addEvents("hold an arrow key for 200 rows, ALL", holding(WXK_DOWN, 0));
    addEvents("hold a move key, 30,000 rows by 200", holding('=', movedRows));
}
