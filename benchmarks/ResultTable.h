#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// A benchmark function that calls `measure`.
using Measurement = std::function<void(benchmark::State&)>;

/// Milliseconds between two pictures of a screen: what takes less is not felt.
constexpr double frameTime = 16;

/// A piece of work and what it has to reach; without any limit it is for information.
///
/// What is shown and judged is the quickest round, since whatever else runs on the machine only adds time; of events
/// that come one after the other it is what 99 of 100 kept below.
struct Row
{
    std::string work; ///< first column; names the benchmarks "<work>/work" and "<work>/yardstick"
    Measurement measurement{};
    int rounds = 10;                      ///< in one repetition
    bool events = false;                  ///< each round is an event of its own
    std::string yardstick{};              ///< what it is measured against, in words
    Measurement yardstickMeasurement{};   ///< none when there is no yardstick
    std::optional<double> milliseconds{}; ///< takes less than that
    std::optional<double> ratio{};        ///< takes less than so many times as long as the yardstick
    std::optional<double> residentMb{};   ///< the counter "rss_mb" shows less than that
    std::optional<double> grownMb{};      ///< the counter "grown_mb" shows less than that
};

/// Registers benchmarks and prints a table of them, one line for each row: time, what it compares with, the limit, and
/// whether it is reached.
///
/// `scripts/bench --before` reads the name out of the first 46 columns and the time out of the next 11.
class ResultTable : public benchmark::BenchmarkReporter
{
public:
    void add(const Row& row);

    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    void printRow(const Row& row);
    std::optional<double> counter(const std::string& benchmark, const std::string& name) const;

    std::vector<Row> rows;
    std::map<std::pair<std::string, std::string>, double> lowest; ///< of each benchmark's counters
};
