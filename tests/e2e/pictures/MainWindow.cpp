// Pictures of the main window and of parts of it.

#include "tests/e2e/pictures/GuidePictures.h"
#include "tests/e2e/pictures/ImageFiles.h"
#include "tests/e2e/pictures/Studio.h"

namespace fs = std::filesystem;

namespace
{

/// A place to the right of a control, a distance away.
Point rightOf(const Rectangle& control, int distance)
{
    return {control.x + control.width + distance, control.middle().y};
}

/// Where the main window is, with its title bar.
Rectangle windowOf(ProgramUnderTest& program)
{
    return program.waitForWindow("Modbus Map Editor").bounds();
}

/// Numbers the parts of the window, in the order of the guide's table.
void numberParts(Studio& studio, ProgramUnderTest& program, const fs::path& image)
{
    const Rectangle window = windowOf(program);
    const Rectangle map = program.mapGrid().placeOfRows(0, 1);
    const Rectangle bar = program.placeOf("Export map to text file");
    const Rectangle status = program.placeOf("COMPRESSED");
    // The buttons stand close together: their numbers are below them, where the row of titles has room.
    const int titles = program.placeOf("ADDRESS").middle().y;
    const Rectangle filter = program.placeOf("Tagname and Description filter");
    const std::vector<Point> places{rightOf(program.placeOf("SOURCE"), 56),
                                    rightOf(program.placeOf("DATABASE"), 85),
                                    {filter.x + filter.width - 22, filter.middle().y},
                                    rightOf(program.placeOf("Group Filters"), 56),
                                    {program.placeOf("Show Input Registers").middle().x, titles},
                                    {program.placeOf("Cut - ctrl x").x, titles},
                                    {map.x + map.width - 55, window.y + 500},
                                    {map.x + map.width * 2 / 5, status.middle().y},
                                    {status.x - 27, status.middle().y},
                                    {window.x + window.width * 7 / 16, bar.middle().y + 4}};
    std::vector<Mark> marks;
    marks.reserve(places.size());
    for (const Point place : places)
        marks.push_back({static_cast<int>(marks.size()) + 1,
                         {(place.x - window.x) * Studio::scale, (place.y - window.y) * Studio::scale}});
    addMarks(image, marks);
    studio.store(image, "window");
}

/// The menu of a row that has the given number, and what lies around.
void takeMenu(Studio& studio, GridOnScreen grid, int row)
{
    grid.select(row);
    grid.rightClick(row);
    Rectangle part = grid.placeOfRows(row - 1, 12);
    part.width = 360;
    studio.store(studio.photograph(part), "menu");
}

} // namespace

void takeMainWindow(Studio& studio)
{
    ProgramUnderTest& program = studio.openSample();
    program.typeFilter("pump");
    program.mapGrid().select(26);
    studio.screen.parkPointer();
    const fs::path screen = studio.photograph(studio.screen.bounds());
    halve(screen);
    studio.store(screen, "main-window");
    numberParts(studio, program, studio.photograph(windowOf(program)));
    takeMenu(studio, program.mapGrid(), 12);
}

void takeMistakes(Studio& studio)
{
    ProgramUnderTest& program = studio.openSample();
    const GridOnScreen grid = program.mapGrid();
    const Rectangle view = program.placeOf("COMPRESSED");
    const Rectangle rows = grid.placeOfRows(0, 1);
    studio.storeDown({studio.photograph(grid.placeOfRows(-1, 6)), studio.photograph(grid.placeOfRows(13, 9)),
                      studio.photograph({rows.x, view.y, rows.width, view.height})},
                     "mistakes");
}

void takeFilter(Studio& studio)
{
    ProgramUnderTest& program = studio.openSample();
    // The tree paints its nodes itself: its root stands in the line of the titles, and the pump is the third below.
    studio.screen.click({program.placeOf("SOURCE").middle().x, program.placeOf("TAGNAME").middle().y});
    for (int node = 0; node < 3; ++node)
        studio.screen.pressKey("Down");
    program.typeFilter("pump*trip");
    const Rectangle box = program.placeOf("ALM");
    studio.screen.click({box.x + 8, box.middle().y});
    studio.screen.parkPointer();

    const Rectangle window = windowOf(program);
    const int width = program.mapGrid().placeOfRows(0, 1).x - window.x;
    const int top = program.placeOf("SOURCE").y - 10;
    const int groups = program.placeOf("Group Filters").y;
    studio.storeDown({studio.photograph({window.x, top, width, 225}),
                      studio.photograph({window.x, groups, width, window.y + window.height - groups})},
                     "filter");
}

void takeFirstPublished(Studio& studio)
{
    ProgramUnderTest& program = studio.openSample("HOLDING,010");
    for (const char* const tagname : {"INT_P01_LOCAL_STS", "INT_P01_NRV_ALM"})
    {
        program.typeFilter(tagname);
        program.tagGrid().select(0);
        studio.screen.pressKey("c", Modifier::Control);
        program.mapGrid().select(4);
        program.clickTool("Append to block");
    }
    studio.store(studio.photograph(program.mapGrid().placeOfRows(-1, 9)), "first-published");
}

void takeViews(Studio& studio)
{
    constexpr int width = 350;
    ProgramUnderTest& program = studio.openSmall({{"00000", "INT16", "INT_P01_MODE_SP.1"},
                                                  {"00001", "FLOAT", "INT_P01_SPEED_SP.1", 2},
                                                  {"00005", "INT32", "INT_P01_HOURS_TOT", 2}});
    std::vector<fs::path> views;
    for (const char* const view : {"COMPRESSED", "EXPANDED", "ALL"})
    {
        program.clickTool("Toggle view");
        program.waitForText(view);
        views.push_back(studio.photographFirstRows(width));
    }
    studio.storeAcross(views, "views");
}
