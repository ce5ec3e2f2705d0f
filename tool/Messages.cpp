#include "tool/Messages.h"

#include "text/Lines.h"
#include "tool/Style.h"

#include <cerrno>
#include <cstdio>
#include <string>
#include <system_error>

void tell(std::string_view message)
{
    std::string line = "tolvane-map: " + printable(message);
    line += nativeLineEnd;
    std::fwrite(line.data(), 1, line.size(), stderr);
    std::fflush(stderr);
}

ExitCode put(std::string_view results, ExitCode done)
{
    const bool written = std::fwrite(results.data(), 1, results.size(), stdout) == results.size();
    if (written && std::fflush(stdout) == 0)
        return done;
    tell("cannot write to standard output: " + std::generic_category().message(errno));
    return ExitCode::Failed;
}
