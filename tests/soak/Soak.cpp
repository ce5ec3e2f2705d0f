#include "tests/soak/Soak.h"

#include "tests/soak/DialogAnswers.h"
#include "tests/soak/Invariants.h"
#include "tests/soak/Report.h"
#include "tests/soak/Session.h"
#include "ui/ToolkitText.h"

#include <wx/debug.h>

#include <iostream>
#include <string>

namespace
{

using Clock = std::chrono::steady_clock;

/// What the toolkit has found wrong since the last step; its handler is a plain function.
std::string assertion;

void keepAssertion(const wxString& file, int line, const wxString& function, const wxString& condition,
                   const wxString& message)
{
    assertion = "assertion of the toolkit in " + modelText(file) + ':' + std::to_string(line) + ' ' +
                modelText(function) + ": " + modelText(condition) + ' ' + modelText(message);
}

double millisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// One run of a plan.
class Run
{
public:
    explicit Run(const SoakPlan& what) : plan(what), chance(what.seed), answers(chance), session(chance) {}

    bool finish()
    {
        report.addHoldings("start");
        int tenths = 0;
        for (int number = 1; progress(number - 1) < 1; ++number)
        {
            if (const std::string wrong = step(number); !wrong.empty())
            {
                std::cout << "seed " << plan.seed << ", step " << number << ", " << lastStep << ": " << wrong << "\n\n";
                report.print(std::cout);
                return false;
            }
            for (; tenths < 9 && progress(number) * 10 >= tenths + 1; ++tenths)
                report.addHoldings(std::to_string(10 * (tenths + 1)) + " of 100, " + std::to_string(number));
        }
        report.addHoldings("end");
        report.print(std::cout);
        return true;
    }

private:
    /// The part of the plan that is done, 0..1.
    double progress(int stepsDone) const
    {
        if (plan.steps)
            return static_cast<double>(stepsDone) / *plan.steps;
        return millisecondsSince(begun) / std::chrono::duration<double, std::milli>(plan.time).count();
    }

    /// Does one step.
    /// @return what is wrong after it; empty when nothing is
    std::string step(int number)
    {
        // Each of them once at first, so that a short run has seen them all.
        const auto index = static_cast<std::size_t>(number - 1);
        const Step& next = index < allSteps().size() ? allSteps()[index] : someStep(chance);
        lastStep = next.name;
        if (next.prepare)
            next.prepare(session.frame(), chance);
        invariants.remember(session.document().map);
        const std::string savedBefore = next.mayLeave ? session.savedText() : "";

        const Clock::time_point start = Clock::now();
        next.run(session.frame(), chance);
        handleEvents();
        report.addStep(lastStep, number, millisecondsSince(start));

        if (!assertion.empty())
            return assertion;
        if (!session.isOpen())
            return reopen(savedBefore);
        session.frame().tick();
        return invariants.broken(session.document().map, session.frame(), next.mayChange);
    }

    /// Opens the window again that was left.
    std::string reopen(const std::string& savedBefore)
    {
        if (session.document().hasUnsavedChanges())
            return "changes were neither saved nor given up";
        if (answers.lastBoxAnswer() == wxID_NO && session.savedText() != savedBefore)
            return "changes were given up, and the file is another one";
        session.open(chance.happens(50));
        return session.document().hasUnsavedChanges() ? "there is something to save in a map just opened" : "";
    }

    const SoakPlan& plan;
    Chance chance;
    DialogAnswers answers;
    Session session;
    Invariants invariants;
    Report report;
    std::string lastStep;
    Clock::time_point begun = Clock::now();
};

} // namespace

bool soak(const SoakPlan& plan)
{
    wxSetAssertHandler(keepAssertion);
    return Run(plan).finish();
}
