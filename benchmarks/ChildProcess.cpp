#include "benchmarks/ChildProcess.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

ChildProcess::ChildProcess(const std::vector<std::string>& command, int output)
{
    std::vector<char*> arguments;
    for (const std::string& argument : command)
        arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    if (output >= 0)
        ::posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    const int error = ::posix_spawnp(&id, arguments[0], &actions, nullptr, arguments.data(), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    if (error != 0)
        throw std::runtime_error("cannot start " + command.front());
}

ChildProcess::~ChildProcess()
{
    if (isRunning())
    {
        ::kill(id, SIGTERM);
        wait();
    }
}

void ChildProcess::wait()
{
    if (id > 0)
        ::waitpid(id, nullptr, 0);
    id = -1;
}

bool ChildProcess::isRunning()
{
    if (id > 0 && ::waitpid(id, nullptr, WNOHANG) == id)
        id = -1;
    return id > 0;
}

double ChildProcess::residentMb() const
{
    constexpr double kilobytesPerMegabyte = 1024;
    std::ifstream status("/proc/" + std::to_string(id) + "/status");
    for (std::string line; std::getline(status, line);)
    {
        if (line.starts_with("VmRSS:"))
            return std::atof(line.c_str() + 6) / kilobytesPerMegabyte;
    }
    return 0;
}

std::string outputOf(const std::vector<std::string>& command)
{
    std::array<int, 2> pipe{};
    if (::pipe2(pipe.data(), O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    ChildProcess child(command, pipe[1]);
    ::close(pipe[1]);
    std::string output;
    std::array<char, 4096> part{};
    ssize_t count = 0;
    while ((count = ::read(pipe[0], part.data(), part.size())) > 0)
        output.append(part.data(), static_cast<std::size_t>(count));
    ::close(pipe[0]);
    child.wait();
    return output;
}
