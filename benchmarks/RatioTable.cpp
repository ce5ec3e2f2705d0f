#include "benchmarks/RatioTable.h"

#include "benchmarks/Measure.h"

#include <array>
#include <cstdio>
#include <iomanip>

namespace
{

constexpr int workWidth = 46;
constexpr int yardstickWidth = 38;
constexpr int timeWidth = 11;
constexpr int ratioWidth = 18;
constexpr int limitWidth = 16;

/// Three significant digits, without an exponent.
std::string shortNumber(double value)
{
    std::array<char, 32> text{};
    int decimals = 0;
    if (value < 10)
        decimals = 2;
    else if (value < 100)
        decimals = 1;
    std::snprintf(text.data(), text.size(), "%.*f", value < 0.1 ? 4 : decimals, value);
    return text.data();
}

std::string plainNumber(double value)
{
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%g", value);
    return text.data();
}

void join(std::string& text, const std::string& part)
{
    text += (text.empty() ? "" : ", ") + part;
}

std::string limitText(const Goal& goal)
{
    std::string text;
    if (goal.ratio)
        join(text, "<= " + plainNumber(*goal.ratio) + "x");
    if (goal.speedUp)
        join(text, ">= " + plainNumber(*goal.speedUp) + "x faster");
    if (goal.milliseconds)
        join(text, "< " + plainNumber(*goal.milliseconds) + " ms");
    if (goal.residentMb)
        join(text, "< " + plainNumber(*goal.residentMb) + " MB");
    return text.empty() ? "-" : text;
}

void printLine(std::ostream& out, const std::array<std::string, 7>& cells)
{
    out << std::left << std::setw(workWidth) << cells[0] << std::right << std::setw(timeWidth) << cells[1] << "  "
        << std::left << std::setw(yardstickWidth) << cells[2] << std::right << std::setw(timeWidth) << cells[3]
        << std::setw(ratioWidth) << cells[4] << "  " << std::left << std::setw(limitWidth) << cells[5] << cells[6]
        << '\n';
}

} // namespace

void RatioTable::add(const Goal& goal, int iterations, const Measurement& work, const Measurement& yardstick)
{
    goals.push_back(goal);
    const auto measured = [&](const std::string& half, const Measurement& function)
    {
        benchmark::RegisterBenchmark((goal.work + half).c_str(), function)
            ->Unit(benchmark::kMillisecond)
            ->UseManualTime()
            ->Iterations(iterations);
    };
    measured("/work", work);
    measured("/yardstick", yardstick);
}

bool RatioTable::ReportContext(const Context&)
{
    return true;
}

void RatioTable::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs)
    {
        if (run.error_occurred)
            GetErrorStream() << run.benchmark_name() << ": " << run.error_message << '\n';
        if (run.run_type != Run::RT_Iteration || run.error_occurred)
            continue;
        Result result;
        result.milliseconds = run.counters.at(quickestCounter).value;
        if (const auto counter = run.counters.find("rss_mb"); counter != run.counters.end())
            result.residentMb = counter->second.value;
        const auto [known, first] = results.try_emplace(run.run_name.function_name, result);
        if (!first && result.milliseconds < known->second.milliseconds)
            known->second = result;
    }
}

void RatioTable::Finalize()
{
    std::ostream& out = GetOutputStream();
    printLine(out, {"work", "time", "yardstick", "its time", "ratio", "limit", "reached"});
    for (const Goal& goal : goals)
    {
        const auto work = results.find(goal.work + "/work");
        const auto yardstick = results.find(goal.work + "/yardstick");
        if (work != results.end() && yardstick != results.end())
            printRow(goal, work->second, yardstick->second);
    }
    out << "Times in milliseconds, each the quickest round of all repetitions.\n";
}

void RatioTable::printRow(const Goal& goal, const Result& work, const Result& yardstick)
{
    const double ratio = work.milliseconds / yardstick.milliseconds;
    std::string ratioText = goal.speedUp ? shortNumber(1 / ratio) + "x faster" : shortNumber(ratio) + "x";
    if (work.residentMb)
        join(ratioText, shortNumber(*work.residentMb) + " MB");

    const bool reached = (!goal.ratio || ratio <= *goal.ratio) && (!goal.speedUp || 1 / ratio >= *goal.speedUp) &&
                         (!goal.milliseconds || work.milliseconds < *goal.milliseconds) &&
                         (!goal.residentMb || work.residentMb.value_or(0) < *goal.residentMb);
    const bool wanted = goal.ratio || goal.speedUp || goal.milliseconds || goal.residentMb;
    std::string answer = reached ? "yes" : "NO";
    printLine(GetOutputStream(),
              {goal.work, shortNumber(work.milliseconds), goal.yardstick, shortNumber(yardstick.milliseconds),
               ratioText, limitText(goal), wanted ? answer : "-"});
}
