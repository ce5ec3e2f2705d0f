#pragma once

#include <cstddef>
#include <iosfwd>
#include <map>
#include <string>
#include <vector>

/// What the process holds at a moment.
struct Holdings
{
    double residentMegabytes = 0;
    double heapMegabytes = 0; ///< handed out by the allocator; 0 under a sanitizer, which brings its own
    std::size_t openFiles = 0;
    std::size_t windows = 0; ///< windows of their own, dialogs included

    /// What the process holds now.
    static Holdings now();
};

/// Gathers what is told at the end.
class Report
{
public:
    /// Notes a step that took so long.
    void addStep(const std::string& name, int number, double milliseconds);

    /// Notes what the process holds.
    void addHoldings(const std::string& when);

    /// Prints everything as tables.
    void print(std::ostream& out) const;

private:
    struct Kind
    {
        int count = 0;
        double total = 0;
        double slowest = 0;
        int slowestStep = 0;
    };
    struct Moment
    {
        std::string when;
        Holdings holdings;
    };

    void printSteps(std::ostream& out) const;
    void printHoldings(std::ostream& out) const;
    void printGrowth(std::ostream& out) const;

    std::map<std::string, Kind> kinds;
    std::vector<Moment> moments;
};
