#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

/// A program that a test has started. It does not outlive this object.
class Process
{
public:
    /// Starts it; throws std::system_error when it cannot be started.
    /// @param environment  what differs from the test's own environment
    /// @param errorOutput  the file that takes what it writes to stderr
    Process(const std::filesystem::path& program, const std::vector<std::string>& arguments,
            const std::map<std::string, std::string>& environment, const std::filesystem::path& errorOutput);
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    ~Process();

    pid_t id() const { return process; }

    /// The exit code once it has ended; 128 and the signal's number when a signal has ended it.
    std::optional<int> exitCode();

private:
    pid_t process = 0;
    std::optional<int> code;
};
