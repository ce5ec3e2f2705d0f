#include "tests/e2e/Process.h"

#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace
{

constexpr int signalOffset = 128;

std::vector<std::string> mergedEnvironment(const std::map<std::string, std::string>& changes)
{
    std::vector<std::string> merged;
    for (char** entry = environ; *entry != nullptr; ++entry)
    {
        const std::string text = *entry;
        if (!changes.contains(text.substr(0, text.find('='))))
            merged.push_back(text);
    }
    for (const auto& [name, value] : changes)
        merged.emplace_back(name).append("=").append(value);
    return merged;
}

/// The form in which the system takes lists of texts.
std::vector<char*> pointersTo(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

} // namespace

Process::Process(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                 const std::map<std::string, std::string>& environment, const std::filesystem::path& errorOutput)
{
    std::vector<std::string> words{program.string()};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<std::string> settings = mergedEnvironment(environment);

    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDERR_FILENO, errorOutput.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    const int failure =
        posix_spawn(&process, program.c_str(), &files, nullptr, pointersTo(words).data(), pointersTo(settings).data());
    posix_spawn_file_actions_destroy(&files);
    if (failure != 0)
        throw std::system_error(failure, std::generic_category(), program.string());
}

Process::~Process()
{
    if (exitCode())
        return;
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
}

std::optional<int> Process::exitCode()
{
    int status = 0;
    if (!code && waitpid(process, &status, WNOHANG) == process)
        code = WIFEXITED(status) ? WEXITSTATUS(status) : signalOffset + WTERMSIG(status);
    return code;
}
