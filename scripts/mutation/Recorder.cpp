// Writes down for each test how long it took and which changes it reached.

#include "Switch.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <fstream>

namespace
{

class Recorder : public testing::EmptyTestEventListener
{
    // What was asked between two tests counts for the later one.
    void OnTestEnd(const testing::TestInfo& test) override
    {
        std::ofstream file(std::getenv("MUTATION_RECORD"), std::ios::app);
        const testing::TestResult& result = *test.result();
        const char* const outcome = result.Skipped() ? "skipped" : result.Passed() ? "passed" : "failed";
        file << test.test_suite_name() << '.' << test.name() << ' ' << outcome << ' ' << result.elapsed_time();
        for (int number = 0; number < mutation::limit; ++number)
        {
            if (mutation::asked[number] != 0)
                file << ' ' << number;
        }
        file << '\n';
        std::memset(mutation::asked, 0, mutation::limit);
    }
};

/// Listens when asked to, without a line in the tests' own main functions.
const bool listening = []
{
    if (mutation::asked != nullptr)
        testing::UnitTest::GetInstance()->listeners().Append(new Recorder);
    return mutation::asked != nullptr;
}();

} // namespace
