// Showing every register of a space in the map grid, against the toolkit's own table of strings.

#include "benchmarks/Benchmarks.h"
#include "benchmarks/DrivenFrame.h"
#include "benchmarks/FullSize.h"
#include "benchmarks/Measure.h"
#include "map/MapRow.h"
#include "map/MapView.h"
#include "map/Validation.h"
#include "ui/ToolkitText.h"
#include "ui/grid/MapGridTable.h"

#include <wx/frame.h>
#include <wx/grid.h>

namespace
{

/// A frame with one grid that fills it, on the screen and painted.
class GridOnScreen
{
public:
    GridOnScreen() : frame(new wxFrame(nullptr, wxID_ANY, "Grid")), shown(new wxGrid(frame, wxID_ANY))
    {
        shown->CreateGrid(0, mapColumnCount, wxGrid::wxGridSelectRows);
        showMaximised(*frame, *shown->GetGridWindow());
    }
    ~GridOnScreen()
    {
        frame->Destroy();
        handleEvents();
    }
    GridOnScreen(const GridOnScreen&) = delete;
    GridOnScreen& operator=(const GridOnScreen&) = delete;

    wxGrid& grid() { return *shown; }

private:
    wxFrame* frame;
    wxGrid* shown;
};

void fillValidated(RegisterMap& map)
{
    fillWithObjects(map);
    validateMap(map, fullTags());
}

void showAll(benchmark::State& state)
{
    RegisterMap map;
    fillValidated(map);
    GridOnScreen screen;
    auto* const table = new MapGridTable(map);
    screen.grid().SetTable(table, true, wxGrid::wxGridSelectRows);
    measure(
        state,
        [&]
        {
            table->show({});
            handleEvents();
        },
        [&] { table->show(shownAddresses(map.currentSlots(), ViewMode::All)); });
    if (screen.grid().GetNumberRows() != registersPerSpace)
        state.SkipWithError("the rows are not shown");
}

void appendRows(wxGrid& grid, const std::vector<MapRow>& rows, bool coloured)
{
    const wxGridUpdateLocker batch(&grid);
    grid.AppendRows(static_cast<int>(rows.size()));
    int row = 0;
    for (const MapRow& cells : rows)
    {
        int column = 0;
        for (const MapCell& cell : cells)
        {
            grid.SetCellValue(row, column, toolkitText(cell.text));
            if (coloured)
                grid.SetCellTextColour(row, column, wxColour(cell.colour.red, cell.colour.green, cell.colour.blue));
            ++column;
        }
        ++row;
    }
}

/// The same rows put into the toolkit's table of strings, the slots already turned into texts and colours.
Measurement appendingRows(bool coloured)
{
    return [=](benchmark::State& state)
    {
        RegisterMap map;
        fillValidated(map);
        std::vector<MapRow> rows;
        for (const RegisterEntry& slot : map.currentSlots())
            rows.push_back(fillMapRow(slot));
        GridOnScreen screen;
        measure(
            state,
            [&]
            {
                screen.grid().SetTable(new wxGridStringTable(0, mapColumnCount), true, wxGrid::wxGridSelectRows);
                handleEvents();
            },
            [&] { appendRows(screen.grid(), rows, coloured); });
    };
}

} // namespace

void addGridBenchmarks(RatioTable& table)
{
    table.add({.work = "refreshMapView, ALL", .yardstick = "stock string grid, texts", .speedUp = 500}, 5, showAll,
              appendingRows(false));
    table.add(
        {.work = "refreshMapView, ALL, coloured", .yardstick = "stock string grid, texts and colours", .speedUp = 500},
        5, showAll, appendingRows(true));
}
