#include "tests/soak/Report.h"

#include <wx/toplevel.h>

#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iterator>
#include <malloc.h>
#include <ostream>
#include <unistd.h>

namespace
{

constexpr double megabyte = 1024.0 * 1024.0;

double residentNow()
{
    std::ifstream statm("/proc/self/statm");
    long all = 0;
    long resident = 0;
    statm >> all >> resident;
    return static_cast<double>(resident) * static_cast<double>(::sysconf(_SC_PAGESIZE)) / megabyte;
}

} // namespace

Holdings Holdings::now()
{
    const struct mallinfo2 heap = ::mallinfo2();
    const std::filesystem::directory_iterator files("/proc/self/fd");
    return {residentNow(), static_cast<double>(heap.uordblks + heap.hblkhd) / megabyte,
            static_cast<std::size_t>(std::distance(begin(files), end(files))), wxTopLevelWindows.size()};
}

void Report::addStep(const std::string& name, int number, double milliseconds)
{
    Kind& kind = kinds[name];
    ++kind.count;
    kind.total += milliseconds;
    if (milliseconds < kind.slowest)
        return;
    kind.slowest = milliseconds;
    kind.slowestStep = number;
}

void Report::addHoldings(const std::string& when)
{
    moments.push_back({when, Holdings::now()});
}

void Report::print(std::ostream& out) const
{
    out << std::fixed << std::setprecision(1);
    printSteps(out);
    printHoldings(out);
    printGrowth(out);
}

void Report::printSteps(std::ostream& out) const
{
    out << std::left << std::setw(18) << "step" << std::right << std::setw(9) << "done" << std::setw(12) << "mean ms"
        << std::setw(12) << "slowest ms" << std::setw(12) << "at step" << '\n';
    for (const auto& [name, kind] : kinds)
    {
        out << std::left << std::setw(18) << name << std::right << std::setw(9) << kind.count << std::setw(12)
            << kind.total / kind.count << std::setw(12) << kind.slowest << std::setw(12) << kind.slowestStep << '\n';
    }
}

void Report::printHoldings(std::ostream& out) const
{
    out << '\n'
        << std::left << std::setw(18) << "when" << std::right << std::setw(14) << "resident MB" << std::setw(10)
        << "heap MB" << std::setw(8) << "files" << std::setw(9) << "windows" << '\n';
    for (const auto& [when, holdings] : moments)
    {
        out << std::left << std::setw(18) << when << std::right << std::setw(14) << holdings.residentMegabytes
            << std::setw(10) << holdings.heapMegabytes << std::setw(8) << holdings.openFiles << std::setw(9)
            << holdings.windows << '\n';
    }
}

void Report::printGrowth(std::ostream& out) const
{
    if (moments.empty())
        return;
    const Holdings& first = moments.front().holdings;
    const Holdings& last = moments.back().holdings;
    out << "\ngrown: resident " << last.residentMegabytes - first.residentMegabytes << " MB, heap "
        << last.heapMegabytes - first.heapMegabytes << " MB, files "
        << static_cast<long>(last.openFiles) - static_cast<long>(first.openFiles) << ", windows "
        << static_cast<long>(last.windows) - static_cast<long>(first.windows) << '\n';
}
