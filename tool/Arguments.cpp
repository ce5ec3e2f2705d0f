#include "tool/Arguments.h"

std::vector<std::string> commandLineArguments(int argc, char** argv)
{
    // A program may be started without even its name.
    return argc > 0 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>();
}
