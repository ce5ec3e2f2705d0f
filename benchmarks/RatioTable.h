#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// What a piece of work is measured against and what it has to reach; a goal without limits is for information.
struct Goal
{
    std::string work;                     ///< first column of the table; names the benchmarks "<work>/work" and so on
    std::string yardstick;                ///< what it is measured against, in words
    std::optional<double> ratio{};        ///< takes at most so many times as long as the yardstick
    std::optional<double> speedUp{};      ///< takes at most the so-many-th part of the yardstick's time
    std::optional<double> milliseconds{}; ///< takes no longer than that
    std::optional<double> residentMb{};   ///< what the counter "rss_mb" of the work may show
};

/// A benchmark function that calls `measure`.
using Measurement = std::function<void(benchmark::State&)>;

/// Registers pairs of benchmarks and prints a table of them, one row for each goal: time of the work, time of the
/// yardstick in the same run, their ratio, the limit, and whether it is reached.
///
/// The quickest round of all repetitions counts, for work and yardstick alike: whatever else runs on the machine only
/// ever adds time.
class RatioTable : public benchmark::BenchmarkReporter
{
public:
    /// Registers "<work>/work" and "<work>/yardstick" under one goal, and a row of the table for them.
    /// @param iterations  rounds of each in one repetition
    void add(const Goal& goal, int iterations, const Measurement& work, const Measurement& yardstick);

    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    struct Result
    {
        double milliseconds = 0;
        std::optional<double> residentMb;
    };

    void printRow(const Goal& goal, const Result& work, const Result& yardstick);

    std::vector<Goal> goals;
    std::map<std::string, Result> results;
};
