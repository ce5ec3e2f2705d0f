// Commands on a full space with every row selected, from the key or button to the painted view, in the program's own
// main window.

#include "benchmarks/Benchmarks.h"
#include "benchmarks/DrivenFrame.h"
#include "benchmarks/FullSize.h"
#include "benchmarks/Measure.h"
#include "ui/TagSearchAndReplaceDialog.h"

#include <wx/grid.h>
#include <wx/modalhook.h>
#include <wx/textctrl.h>

#include <functional>

namespace
{

constexpr int half = registersPerSpace / 2;
constexpr bool withControl = true;

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

Drive nothing()
{
    return [](DrivenFrame&) {};
}

Drive select(int first, int last)
{
    return [=](DrivenFrame& frame) { frame.selectRows(first, last); };
}

Drive selectEverySecond()
{
    return [](DrivenFrame& frame)
    {
        frame.mapRows().ClearSelection();
        for (int row = 0; row < registersPerSpace; row += 2)
            frame.mapRows().SelectRow(row, true);
    };
}

Drive press(int key, bool control = false)
{
    return [=](DrivenFrame& frame) { frame.press(key, control); };
}

Drive click(const char* tooltip)
{
    return [=](DrivenFrame& frame) { frame.click(tooltip); };
}

Drive inTurn(const Drive& first, const Drive& second)
{
    return [=](DrivenFrame& frame)
    {
        first(frame);
        second(frame);
    };
}

/// What a command finds and does.
struct Scene
{
    Drive prepare; ///< what is done to the full map before all measurements
    Drive select;  ///< done before each of them
    Drive command; ///< what is measured
};

Measurement driving(const Scene& scene)
{
    return [=](benchmark::State& state)
    {
        const DialogAnswers answers;
        FrameOnScreen frame(mapOfSingleRegisters());
        RegisterMap& map = frame->registers();
        frame->showAllRegisters();
        scene.prepare(*frame);
        const RegistersCopy original(map);
        map.takeSnapshot();
        measure(
            state,
            [&]
            {
                original.restore(map);
                scene.select(*frame);
                handleEvents();
            },
            [&]
            {
                scene.command(*frame);
                paintNow(*frame->mapRows().GetGridWindow());
            });
        if (!map.isModified() && map.clipboard.size() != registersPerSpace)
            state.SkipWithError("the command did not do its work");
    };
}

} // namespace

void addCommandBenchmarks(ResultTable& table)
{
    constexpr double frameTime = 16;
    const auto add = [&](const char* work, const Drive& prepare, const Drive& selection, const Drive& command)
    {
        Row row{.work = work, .milliseconds = frameTime};
        row.measurement = driving({prepare, selection, command});
        table.add(row);
    };
    const Drive all = select(0, lastAddress);
    const Drive cut = press('X', withControl);
    const Drive replace = click("Tagname search and replace");
    const Drive freeLast = inTurn(select(lastAddress, lastAddress), press(WXK_DELETE));
    const Drive freeEverySecond = inTurn(selectEverySecond(), press(WXK_DELETE));
    const Drive copyHalf = inTurn(select(half, lastAddress), cut); // leaves room for as much as it copies

    add("copy 65,536 rows", nothing(), all, press('C', withControl));
    add("cut 65,536 rows", nothing(), all, cut);
    add("delete 65,536 rows", nothing(), all, press(WXK_DELETE));
    add("paste 32,768 before 32,768", copyHalf, all, press('V', withControl));
    add("append 32,768 to 32,768", copyHalf, all, click("Append to block"));
    add("move 65,535 rows down", freeLast, select(0, lastAddress - 1), press('='));
    add("shove 32,768 rows through 32,767", freeLast, select(0, half - 1), press('=', withControl));
    add("compress 65,536 rows, every second one free", freeEverySecond, all,
        click("Compress registers into contiguous block"));
    add("toggle the lock of 65,536 rows", nothing(), all, click("Toggle register lock"));
    add("replace in 65,536 tagnames, new names", nothing(), all, replace);
    add("purge 65,536 registers in error", inTurn(all, replace), all, click("Delete registers with errors"));
    add("Ctrl+A and cut, ALL, painted", nothing(), select(0, 0), inTurn(press('A', withControl), cut));
    add("delete of every second row, painted", nothing(), selectEverySecond(), press(WXK_DELETE));
}
