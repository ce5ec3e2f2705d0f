#include "benchmarks/ResultTable.h"

#include "benchmarks/Measure.h"

#include <array>
#include <cstdio>
#include <iomanip>

namespace
{

constexpr int workWidth = 46;
constexpr int timeWidth = 11;
constexpr int comparisonWidth = 55;
constexpr int limitWidth = 20;

/// Three significant digits, without an exponent.
std::string shortNumber(double value)
{
    int decimals = 0;
    if (value < 10)
        decimals = 2;
    else if (value < 100)
        decimals = 1;
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.*f", decimals, value);
    return text.data();
}

/// The parts of a cell; an empty cell shows a dash.
std::string joined(const std::vector<std::string>& parts)
{
    std::string text;
    for (const std::string& part : parts)
        text += (text.empty() ? "" : ", ") + part;
    return text.empty() ? "-" : text;
}

std::string limitsOf(const Row& row)
{
    std::vector<std::string> limits;
    if (row.milliseconds)
        limits.push_back("< " + shortNumber(*row.milliseconds) + " ms");
    if (row.ratio)
        limits.push_back("< " + shortNumber(*row.ratio) + "x");
    if (row.residentMb)
        limits.push_back("< " + shortNumber(*row.residentMb) + " MB");
    return joined(limits);
}

/// Whether a value keeps to its limit; a row without that limit keeps to it.
bool isBelow(double value, const std::optional<double>& limit)
{
    return !limit || value < *limit;
}

void printLine(std::ostream& out, const std::array<std::string, 5>& cells)
{
    out << std::left << std::setw(workWidth) << cells[0] << std::right << std::setw(timeWidth) << cells[1] << "  "
        << std::left << std::setw(comparisonWidth) << cells[2] << std::setw(limitWidth) << cells[3] << cells[4] << '\n';
}

} // namespace

void ResultTable::add(const Row& row)
{
    rows.push_back(row);
    const auto registerOne = [&](const char* half, const Measurement& measurement)
    {
        if (measurement)
            benchmark::RegisterBenchmark((row.work + half).c_str(), measurement)
                ->Unit(benchmark::kMillisecond)
                ->UseManualTime()
                ->Iterations(row.rounds);
    };
    registerOne("/work", row.measurement);
    registerOne("/yardstick", row.yardstickMeasurement);
}

bool ResultTable::ReportContext(const Context&)
{
    return true;
}

void ResultTable::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs)
    {
        if (run.error_occurred)
            GetErrorStream() << run.benchmark_name() << ": " << run.error_message << '\n';
        if (run.run_type != Run::RT_Iteration || run.error_occurred)
            continue;
        Counters& lowest = results[run.run_name.function_name];
        for (const auto& [name, value] : run.counters)
        {
            const auto [known, first] = lowest.try_emplace(name, value.value);
            known->second = first ? value.value : std::min(known->second, value.value);
        }
    }
}

std::optional<double> ResultTable::counter(const std::string& benchmark, const std::string& name) const
{
    const auto counters = results.find(benchmark);
    if (counters == results.end() || !counters->second.contains(name))
        return std::nullopt;
    return counters->second.at(name);
}

void ResultTable::Finalize()
{
    GetOutputStream() << '\n';
    printLine(GetOutputStream(), {"work", "time", "compares with", "limit", "reached"});
    for (const Row& row : rows)
        printRow(row);
    GetOutputStream() << "Times in milliseconds: the quickest round of all repetitions, or the 99th of 100 events.\n";
}

void ResultTable::printRow(const Row& row)
{
    const std::string work = row.work + "/work";
    const auto time = counter(work, row.shown == Shown::Quickest ? quickestCounter : slowestCounter);
    if (!time)
        return;
    const double yardstick = counter(row.work + "/yardstick", quickestCounter).value_or(*time);
    const double ratio = *time / yardstick;
    const double resident = counter(work, "rss_mb").value_or(0);

    std::vector<std::string> comparison;
    if (row.shown == Shown::Slowest)
        comparison.push_back("half of the events below " + shortNumber(*counter(work, medianCounter)));
    if (row.yardstickMeasurement)
        comparison.push_back(shortNumber(ratio) + "x " + row.yardstick + " (" + shortNumber(yardstick) + ")");
    if (row.residentMb)
        comparison.push_back(shortNumber(resident) + " MB");

    const std::string limits = limitsOf(row);
    const bool reached =
        isBelow(*time, row.milliseconds) && isBelow(ratio, row.ratio) && isBelow(resident, row.residentMb);
    const char* const answer = reached ? "yes" : "NO";
    printLine(GetOutputStream(),
              {row.work, shortNumber(*time), joined(comparison), limits, limits == "-" ? limits : answer});
}
