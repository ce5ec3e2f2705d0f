// Searching the tag database, against grep over the same texts.

#include "benchmarks/Benchmarks.h"
#include "benchmarks/ChildProcess.h"
#include "benchmarks/DrivenFrame.h"
#include "benchmarks/FullSize.h"
#include "benchmarks/Measure.h"
#include "benchmarks/ScratchFiles.h"
#include "source/TagFilter.h"

#include <wx/grid.h>

#include <cstring>

namespace
{

/// A text that one tag in eight holds.
constexpr const char* substring = "flow";
constexpr int tagsWithSubstring = tagCapacity / 8;

/// Milliseconds between two pictures of a screen.
constexpr double frameTime = 16;

TagFilter substringFilter()
{
    return {.prefix = "", .text = substring, .checkedMasks = {}};
}

TagFilter wildcardFilter()
{
    return {.prefix = "", .text = "p?mp*limit", .checkedMasks = {}};
}

/// The tags of one kind of equipment that tell about flow and can be commanded.
TagFilter prefixAndGroups()
{
    return {.prefix = "PUMP", .text = "", .checkedMasks = {0x001, 0x2000}};
}

/// @param expected  how many tags pass
Measurement filtering(const TagFilter& filter, std::size_t expected)
{
    return [=](benchmark::State& state)
    {
        const TagTable tags = fullTags();
        const TagSearchIndex index(tags);
        std::vector<int> found;
        measure(state, [&] { found = filterTags(tags, index, filter); });
        if (found.size() != expected)
            state.SkipWithError("another number of tags passes");
    };
}

void filterToPaintedGrid(benchmark::State& state)
{
    FrameOnScreen frame;
    measure(
        state,
        [&]
        {
            frame->filterBy("");
            handleEvents();
        },
        [&]
        {
            frame->filterBy(substring);
            paintNow(*frame->tagRows().GetGridWindow());
        });
    if (frame->tagRows().GetNumberRows() != tagsWithSubstring)
        state.SkipWithError("another number of rows is shown");
}

void grep(benchmark::State& state)
{
    const ScratchFolder folder;
    const auto path = folder.file("tags");
    writeInput(path, fullTagLines());
    std::string count;
    measure(state, [&] { count = outputOf({"grep", "-ic", substring, path.string()}); });
    if (std::atoi(count.c_str()) != tagsWithSubstring)
        state.SkipWithError("grep counts another number of tags");
}

/// Counts the lines that hold `wanted`, which is in capitals as they are.
int countLines(std::string_view lines, std::string_view wanted)
{
    int count = 0;
    while (const void* const found = ::memmem(lines.data(), lines.size(), wanted.data(), wanted.size()))
    {
        ++count;
        lines.remove_prefix(static_cast<std::size_t>(static_cast<const char*>(found) - lines.data()));
        const std::size_t end = lines.find('\n');
        lines.remove_prefix(end == std::string_view::npos ? lines.size() : end);
    }
    return count;
}

void searchMemory(benchmark::State& state)
{
    std::string lines = fullTagLines();
    for (char& c : lines)
        c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    measure(state, [&] { benchmark::DoNotOptimize(countLines(lines, "FLOW")); });
}

} // namespace

void addFilterBenchmarks(RatioTable& table)
{
    const std::string grepText = std::string("grep -ic ") + substring;
    const auto add = [&](const char* work, int iterations, const Measurement& measurement)
    {
        table.add({.work = work, .yardstick = grepText, .ratio = 2, .milliseconds = frameTime}, iterations, measurement,
                  grep);
    };
    const Measurement bySubstring = filtering(substringFilter(), tagsWithSubstring);
    add("filter by a substring", 20, bySubstring);
    add("filter by a wildcard pattern", 20, filtering(wildcardFilter(), tagCapacity / 8 / 8 * 2));
    add("filter by prefix and two groups", 20, filtering(prefixAndGroups(), tagCapacity / 8 / 8 / 8));
    add("filter to painted grid", 10, filterToPaintedGrid);
    table.add({.work = "filter by a substring, beside memmem", .yardstick = "memmem over the same texts"}, 20,
              bySubstring, searchMemory);
}
