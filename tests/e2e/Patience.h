#pragma once

#include <chrono>
#include <thread>

/// How long a test waits for what has to come. Only a failing test ever waits so long.
constexpr std::chrono::seconds patience{30};

/// Asks again and again until the answer is something.
/// @param ask  returns what counts as true once it is there: a bool, an optional, a pointer
/// @return the first such answer, or the last one when patience ran out
template <typename Question>
auto waitFor(Question ask)
{
    const auto end = std::chrono::steady_clock::now() + patience;
    auto answer = ask();
    while (!answer && std::chrono::steady_clock::now() < end)
    {
        // Leaves the processor to the program that is being waited for.
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
        answer = ask();
    }
    return answer;
}
