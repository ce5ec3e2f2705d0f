#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

/// A program that a benchmark starts; it is ended, and its end awaited, with the object.
class ChildProcess
{
public:
    /// @param command  the program, searched for like a shell does, and its arguments
    /// @param output   descriptor that takes its standard output; -1 leaves it with ours
    explicit ChildProcess(const std::vector<std::string>& command, int output = -1);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// Waits until it ends of itself.
    void wait();

    /// True as long as it has not ended.
    bool isRunning();

    /// Megabytes of memory that it holds at present.
    double residentMb() const;

private:
    pid_t id = -1;
};

/// Runs a program to its end.
/// @return what it wrote to its standard output
std::string outputOf(const std::vector<std::string>& command);
