#include "benchmarks/ResultTable.h"

#include "benchmarks/Measure.h"

#include <array>
#include <cstdio>

namespace
{

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

/// The last three columns of a row, as they are found.
struct Judgement
{
    std::string comparison;
    std::string limits;
    bool reached = true;

    void compare(const std::string& part) { comparison += (comparison.empty() ? "" : ", ") + part; }

    void judge(double value, const std::optional<double>& limit, const char* unit)
    {
        if (!limit)
            return;
        limits += (limits.empty() ? "< " : ", < ") + shortNumber(*limit) + unit;
        reached = reached && value < *limit;
    }

    void judgeMemory(double megabytes, const std::optional<double>& limit, const std::string& what)
    {
        compare(what + shortNumber(megabytes) + " MB");
        judge(megabytes, limit, " MB");
    }

    const char* answer() const
    {
        if (limits.empty())
            return "-";
        return reached ? "yes" : "NO";
    }
};

std::string orDash(const std::string& cell)
{
    return cell.empty() ? "-" : cell;
}

void printLine(std::ostream& out, const std::array<std::string, 5>& cells)
{
    std::array<char, 256> line{};
    std::snprintf(line.data(), line.size(), "%-46s%11s  %-55s%-20s%s\n", cells[0].c_str(), cells[1].c_str(),
                  cells[2].c_str(), cells[3].c_str(), cells[4].c_str());
    out << line.data();
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
        for (const auto& [name, value] : run.counters)
        {
            const auto known = lowest.try_emplace({run.run_name.function_name, name}, value.value).first;
            known->second = std::min(known->second, value.value);
        }
    }
}

std::optional<double> ResultTable::counter(const std::string& benchmark, const std::string& name) const
{
    const auto found = lowest.find({benchmark, name});
    return found == lowest.end() ? std::nullopt : std::optional(found->second);
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
    const auto time = counter(work, row.events ? slowestCounter : quickestCounter);
    if (!time)
        return;
    Judgement judgement;
    judgement.judge(*time, row.milliseconds, " ms");
    if (row.events)
        judgement.compare("half of the events below " + shortNumber(counter(work, medianCounter).value_or(0)));
    if (row.yardstickMeasurement)
    {
        const double yardstick = counter(row.work + "/yardstick", quickestCounter).value_or(*time);
        judgement.compare(shortNumber(*time / yardstick) + "x " + row.yardstick + " (" + shortNumber(yardstick) + ")");
        judgement.judge(*time / yardstick, row.ratio, "x");
    }
    if (row.residentMb)
        judgement.judgeMemory(counter(work, "rss_mb").value_or(0), row.residentMb, "");
    if (row.grownMb)
        judgement.judgeMemory(counter(work, "grown_mb").value_or(0), row.grownMb, "kept ");
    printLine(GetOutputStream(), {row.work, shortNumber(*time), orDash(judgement.comparison), orDash(judgement.limits),
                                  judgement.answer()});
}
