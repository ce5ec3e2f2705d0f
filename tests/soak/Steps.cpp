#include "tests/soak/Steps.h"

#include "ui/CommandTable.h"
#include "ui/SpaceButtons.h"

#include <wx/grid.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <string_view>

namespace
{

/// Selects mostly a few rows, sometimes several blocks, seldom all or none.
void selectSome(wxGrid& grid, Chance& chance)
{
    const int rows = grid.GetNumberRows();
    grid.ClearSelection();
    if (rows == 0 || chance.happens(3))
        return;
    if (chance.happens(2))
        return grid.SelectAll();
    const int blocks = chance.happens(15) ? chance.pick(2, 5) : 1;
    const int longest = chance.oneOf({1, 1, 8, 64, 512});
    for (int block = 0; block < blocks; ++block)
    {
        const int first = chance.pick(0, rows - 1);
        const int last = std::min(first + chance.pick(0, longest - 1), rows - 1);
        grid.SelectBlock(first, 0, last, grid.GetNumberCols() - 1, true);
    }
}

void selectRegisters(WorkedFrame& frame, Chance& chance)
{
    selectSome(frame.mapRows(), chance);
}

void selectTags(WorkedFrame& frame, Chance& chance)
{
    selectSome(frame.tagRows(), chance);
}

const Command& commandCalled(std::string_view tooltip, ButtonBar bar)
{
    for (const Command& command : allCommands())
    {
        if (command.bar == bar && tooltip == command.tooltip)
            return command;
    }
    throw std::invalid_argument("no command " + std::string(tooltip));
}

/// A text that a template can be made for.
template <std::size_t Length>
struct Text
{
    // NOLINTNEXTLINE(google-explicit-constructor): it stands for the literal
    constexpr Text(const char (&literal)[Length]) { std::copy_n(literal, Length, characters); }

    char characters[Length]{};
};

/// Gives the command that has that tooltip.
template <Text Tooltip, ButtonBar Bar = ButtonBar::Map>
void give(WorkedFrame& frame, Chance& chance)
{
    static const Command& command = commandCalled(Tooltip.characters, Bar);
    frame.give(command, chance);
}

void editByDoubleClick(WorkedFrame& frame, Chance& chance)
{
    if (const int rows = frame.mapRows().GetNumberRows(); rows > 0)
        frame.doubleClick(chance.pick(0, rows - 1));
}

void selectAllRegisters(WorkedFrame& frame, Chance&)
{
    WorkedFrame::press(frame.mapRows(), 'A', true);
}

void selectAllTags(WorkedFrame& frame, Chance&)
{
    WorkedFrame::press(frame.tagRows(), 'A', true);
}

void chooseSpace(WorkedFrame& frame, Chance& chance)
{
    frame.pressMapButton(std::begin(spaceButtonOrder)[chance.pick(0, spaceCount - 1)].tooltip);
}

void typeIntoFilter(WorkedFrame& frame, Chance& chance)
{
    wxTextCtrl& filter = frame.filterField();
    filter.Clear();
    for (const char letter : std::string_view(chance.oneOf({"", "pump", "FLOW_PV", "p*1?0", "1_t", "nowhere", " "})))
        filter.AppendText(wxString(letter));
}

void tickGroup(WorkedFrame& frame, Chance& chance)
{
    frame.tickSomeGroup(chance);
}

void chooseNode(WorkedFrame& frame, Chance& chance)
{
    wxTreeCtrl& tree = frame.structureTree();
    wxTreeItemId node = tree.GetRootItem();
    wxTreeItemIdValue cookie{};
    // Down by one of the first children each, as deep as chance goes.
    while (tree.ItemHasChildren(node) && !chance.happens(30))
    {
        wxTreeItemId child = tree.GetFirstChild(node, cookie);
        for (int i = chance.pick(0, 7); i > 0 && tree.GetNextSibling(child).IsOk(); --i)
            child = tree.GetNextSibling(child);
        node = child;
    }
    if (node == tree.GetRootItem() && tree.HasFlag(wxTR_HIDE_ROOT))
        return;
    tree.SelectItem(node);
}

void scroll(WorkedFrame& frame, Chance& chance)
{
    wxGrid& grid = chance.happens(50) ? frame.mapRows() : frame.tagRows();
    if (const int rows = grid.GetNumberRows(); rows > 0)
        grid.MakeCellVisible(chance.pick(0, rows - 1), 0);
}

constexpr ButtonBar global = ButtonBar::Global;

// Keys and buttons of a day: what makes room and what fills it are in balance, so that the map stays large.
constexpr Step steps[] = {
    {"copy tags", 8, MayChange::Nothing, selectTags, give<"Copy - ctrl c", ButtonBar::Database>},
    {"select all tags", 1, MayChange::Nothing, nullptr, selectAllTags},
    {"filter", 6, MayChange::Nothing, nullptr, typeIntoFilter},
    {"group", 3, MayChange::Nothing, nullptr, tickGroup},
    {"tree", 4, MayChange::Nothing, nullptr, chooseNode},
    {"scroll", 4, MayChange::Nothing, nullptr, scroll},
    {"space", 5, MayChange::Nothing, nullptr, chooseSpace},
    {"view", 5, MayChange::Nothing, nullptr, give<"Toggle view">},
    {"select all", 1, MayChange::Nothing, nullptr, selectAllRegisters},
    {"copy", 6, MayChange::Nothing, selectRegisters, give<"Copy - ctrl c">},
    {"cut", 5, MayChange::Unclaimed, selectRegisters, give<"Cut - ctrl x">},
    {"paste", 14, MayChange::Unlocked, selectRegisters, give<"Paste - ctrl v">},
    {"append", 8, MayChange::Unlocked, selectRegisters, give<"Append to block">},
    {"delete", 5, MayChange::Unclaimed, selectRegisters, give<"Delete - del">},
    {"move down", 5, MayChange::Unlocked, selectRegisters, give<"Move registers down">},
    {"move up", 5, MayChange::Unlocked, selectRegisters, give<"Move registers up">},
    {"shove down", 5, MayChange::Unlocked, selectRegisters, give<"Shove registers down">},
    {"shove up", 5, MayChange::Unlocked, selectRegisters, give<"Shove registers up">},
    {"compress", 4, MayChange::Unclaimed, selectRegisters, give<"Compress registers into contiguous block">},
    {"lock", 4, MayChange::Locks, selectRegisters, give<"Toggle register lock">},
    {"replace", 4, MayChange::Unlocked, selectRegisters, give<"Tagname search and replace">},
    {"edit", 6, MayChange::Unclaimed, selectRegisters, give<"Edit">},
    {"double click", 3, MayChange::Unclaimed, nullptr, editByDoubleClick},
    {"purge", 1, MayChange::AllSpaces, nullptr, give<"Delete registers with errors">},
    {"export", 1, MayChange::Nothing, nullptr, give<"Export map to text file", global>},
    {"settings", 2, MayChange::Nothing, nullptr, give<"Settings and Defaults", global>},
    {"about", 1, MayChange::Nothing, nullptr, give<"About", global>},
    {"help", 1, MayChange::Nothing, nullptr, give<"Help", global>},
    {"exit", 1, MayChange::Nothing, nullptr, give<"Exit without saving", global>, true},
};

} // namespace

std::span<const Step> allSteps()
{
    return steps;
}

const Step& someStep(Chance& chance)
{
    int total = 0;
    for (const Step& step : steps)
        total += step.weight;
    int drawn = chance.pick(1, total);
    const Step* step = steps;
    while (drawn > step->weight)
        drawn -= (step++)->weight;
    return *step;
}
