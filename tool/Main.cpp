// tolvane-map: the editor's rules for scripts and reviewers.

#include "tool/Arguments.h"
#include "tool/Check.h"
#include "tool/CommandLine.h"
#include "tool/Diff.h"
#include "tool/Export.h"
#include "tool/Messages.h"
#include "tool/Terminal.h"

#include <exception>

namespace
{

/// Does what was asked for.
struct Run
{
    ExitCode operator()(const CheckOptions& options) const { return check(options); }
    ExitCode operator()(const DiffOptions& options) const { return diff(options); }
    ExitCode operator()(const ExportOptions& options) const { return exportTo(options); }
    ExitCode operator()(ExitCode done) const { return done; }
};

} // namespace

int main(int argc, char** argv)
try
{
    passBytesThrough();
    return static_cast<int>(std::visit(Run{}, readCommandLine(commandLineArguments(argc, argv))));
}
catch (const std::exception& error)
{
    // What is left is a lack of memory.
    tell(error.what());
    return static_cast<int>(ExitCode::Failed);
}
