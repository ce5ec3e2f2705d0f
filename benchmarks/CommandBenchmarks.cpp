// Commands on a full space with every row selected, from the command to the painted view, in the program's own main
// window.

#include "benchmarks/Benchmarks.h"
#include "benchmarks/DrivenFrame.h"
#include "benchmarks/FullSize.h"
#include "benchmarks/Measure.h"
#include "ui/TagSearchAndReplaceDialog.h"

#include <wx/grid.h>
#include <wx/modalhook.h>
#include <wx/textctrl.h>

#include <functional>
#include <vector>

namespace
{

constexpr int half = registersPerSpace / 2;

/// Answers what the commands ask: yes to questions, and a name that nothing has had before to the replacing dialog.
class DialogAnswers : public wxModalDialogHook
{
public:
    DialogAnswers() { Register(); }

protected:
    int Enter(wxDialog* dialog) override
    {
        auto* const replacing = dynamic_cast<TagSearchAndReplaceDialog*>(dialog);
        if (replacing == nullptr)
            return wxID_YES;
        replacing->findText->SetValue("_");
        replacing->replaceText->SetValue(wxString::Format("_%d_", ++replaced));
        return wxID_OK;
    }

private:
    int replaced = 0;
};

/// What is done to the window.
using Drive = std::function<void(DrivenFrame& frame)>;

void nothing(DrivenFrame&) {}

Drive select(int first, int last)
{
    return [=](DrivenFrame& frame) { frame.selectRows(first, last); };
}

/// Frees registers before the measurements.
Drive cut(int first, int last)
{
    return [=](DrivenFrame& frame)
    {
        frame.selectRows(first, last);
        frame.cutRegisters();
    };
}

void cutEverySecond(DrivenFrame& frame)
{
    frame.mapRows().ClearSelection();
    for (int row = 0; row < registersPerSpace; row += 2)
        frame.mapRows().SelectRow(row, true);
    frame.cutRegisters();
}

/// Gives every register a name that the database does not know.
void spoilNames(DrivenFrame& frame)
{
    frame.selectRows(0, lastAddress);
    frame.replaceInTagnames();
}

/// Measures a command.
/// @param prepare    done to the full map before all rounds
/// @param selection  done before each of them
Measurement running(const Drive& prepare, const Drive& selection, const Drive& command)
{
    return [=](benchmark::State& state)
    {
        const DialogAnswers answers;
        FrameOnScreen frame(mapOfSingleRegisters());
        RegisterMap& map = frame->registers();
        frame->showAllRegisters();
        prepare(*frame);
        std::vector<RegisterSlots> original;
        original.reserve(spaceCount);
        for (const RegisterSpace space : allSpaces)
            original.push_back(map.slots(space));
        map.takeSnapshot();
        measure(
            state,
            [&]
            {
                for (const RegisterSpace space : allSpaces)
                    map.slots(space) = original[static_cast<std::size_t>(space)];
                selection(*frame);
                handleEvents();
            },
            [&]
            {
                command(*frame);
                paintNow(*frame->mapRows().GetGridWindow());
            });
        if (!map.isModified() && map.clipboard.size() != registersPerSpace)
            state.SkipWithError("the command did not do its work");
    };
}

} // namespace

void addCommandBenchmarks(ResultTable& table)
{
    const auto add = [&](const char* work, const Drive& prepare, const Drive& selection, const Drive& command)
    {
        Row row{.work = work, .milliseconds = frameTime};
        row.measurement = running(prepare, selection, command);
        table.add(row);
    };
    const auto move = [](bool shoving)
    { return [=](DrivenFrame& frame) { frame.moveRegisters(shoving, MoveDirection::Down); }; };
    const Drive all = select(0, lastAddress);
    const Drive freeLast = cut(lastAddress, lastAddress);
    const Drive freeHalf = cut(half, lastAddress); // leaves room for as much as it copies

    add("copy 65,536 rows", nothing, all, &MainFrame::copyRegisters);
    add("cut 65,536 rows", nothing, all, &MainFrame::cutRegisters);
    add("delete 65,536 rows", nothing, all, &MainFrame::deleteRegisters);
    add("paste 32,768 before 32,768", freeHalf, all, &MainFrame::pasteRegisters);
    add("append 32,768 to 32,768", freeHalf, all, &MainFrame::appendRegisters);
    add("move 65,535 rows down", freeLast, select(0, lastAddress - 1), move(false));
    add("shove 32,768 rows through 32,767", freeLast, select(0, half - 1), move(true));
    add("compress 65,536 rows, every second one free", cutEverySecond, all, &MainFrame::compressRegisters);
    add("toggle the lock of 65,536 rows", nothing, all, &MainFrame::toggleLocks);
    add("replace in 65,536 tagnames, new names", nothing, all, &MainFrame::replaceInTagnames);
    add("purge 65,536 registers in error", spoilNames, all, &MainFrame::deleteErrorRegisters);
}
