// Works the main window on the largest map with random commands:
//   soak MINUTES [SEED]
//   soak --steps COUNT [SEED]

#include "tests/soak/Soak.h"
#include "tests/ui/EditorApplication.h"

#include <wx/evtloop.h>

#include <charconv>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string_view>
#include <vector>

namespace
{

std::optional<std::uint32_t> wholeNumber(std::string_view text)
{
    std::uint32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

std::optional<SoakPlan> planOf(std::vector<std::string_view> arguments)
{
    const bool byCount = !arguments.empty() && arguments.front() == "--steps";
    if (byCount)
        arguments.erase(arguments.begin());
    if (arguments.empty() || arguments.size() > 2)
        return std::nullopt;
    const std::optional<std::uint32_t> length = wholeNumber(arguments.front());
    const std::optional<std::uint32_t> seed = wholeNumber(arguments.size() > 1 ? arguments.back() : "1");
    if (!length || !seed || *length == 0 || *length > 1'000'000'000)
        return std::nullopt;
    SoakPlan plan;
    plan.seed = *seed;
    if (byCount)
        plan.steps = static_cast<int>(*length);
    else
        plan.time = std::chrono::minutes(*length);
    return plan;
}

bool runInApplication(int& argc, char** argv, const SoakPlan& plan)
{
    wxApp::SetInstance(new EditorApplication);
    if (!wxEntryStart(argc, argv) || !wxTheApp->CallOnInit())
        return false;
    bool sound = false;
    {
        wxEventLoop loop;
        const wxEventLoopActivator active(&loop);
        sound = soak(plan);
    }
    wxTheApp->OnExit();
    wxEntryCleanup();
    return sound;
}

} // namespace

int main(int argc, char** argv)
try
{
    const std::optional<SoakPlan> plan = planOf({argv + 1, argv + argc});
    if (!plan)
    {
        std::cerr << "usage: soak MINUTES [SEED]\n       soak --steps COUNT [SEED]\n";
        return 2;
    }
    return runInApplication(argc, argv, *plan) ? EXIT_SUCCESS : EXIT_FAILURE;
}
catch (const std::exception& error)
{
    std::cerr << "soak: " << error.what() << '\n';
    return EXIT_FAILURE;
}
