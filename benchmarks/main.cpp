// The benchmark program: work at full size, its limits and yardsticks, printed as a table.

#include "benchmarks/Benchmarks.h"
#include "tests/ui/EditorApplication.h"

#include <wx/evtloop.h>
#include <wx/utils.h>

#include <cstdlib>
#include <exception>
#include <iostream>

namespace
{

void runBenchmarks()
{
    ResultTable table;
    addCommandBenchmarks(table);
    addViewBenchmarks(table);
    addFileBenchmarks(table);
    addStartBenchmarks(table);
    addToolBenchmarks(table);
    addEnduranceBenchmarks(table);
    benchmark::RunSpecifiedBenchmarks(&table);
}

} // namespace

int main(int argc, char** argv)
try
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return EXIT_FAILURE;

    // The program looks for the suite's key file; the build tree has one.
    wxSetEnv("XDG_CONFIG_DIRS", TOLVANE_BENCH_CONFIG);
    wxApp::SetInstance(new EditorApplication);
    if (!wxEntryStart(argc, argv) || !wxTheApp->CallOnInit())
        return EXIT_FAILURE;
    {
        wxEventLoop loop;
        const wxEventLoopActivator active(&loop);
        runBenchmarks();
    }
    wxTheApp->OnExit();
    wxEntryCleanup();
    return EXIT_SUCCESS;
}
catch (const std::exception& error)
{
    std::cerr << "tolvane_bench: " << error.what() << '\n';
    return EXIT_FAILURE;
}
