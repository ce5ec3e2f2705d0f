#include "tool/Export.h"

#include "files/SafeWrite.h"
#include "map/MapExport.h"
#include "tool/Inputs.h"
#include "tool/Messages.h"
#include "tool/Paths.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace
{

bool isCsv(const ExportOptions& options)
{
    if (options.format != ExportChoice::ByName)
        return options.format == ExportChoice::Csv;
    return exportFormatFor(options.outputPath) == ExportFormat::Csv;
}

/// The file behind a path, to be compared. Where a system does not name the standard streams like this, they are
/// compared with nothing.
std::filesystem::path fileBehind(const std::string& path, const char* stream)
{
    return path == standardStream ? std::filesystem::path(stream) : toPath(path);
}

/// An export cannot be read back: written over the map or the database it would destroy what it was made from.
bool isInput(const ExportOptions& options)
{
    const std::filesystem::path output = fileBehind(options.outputPath, "/dev/stdout");
    const auto isOutput = [&](const std::string& input)
    {
        std::error_code error; // none of them is there, or it is no file: nothing is written over
        return !input.empty() && std::filesystem::equivalent(output, fileBehind(input, "/dev/stdin"), error);
    };
    return isOutput(options.mapPath) || isOutput(options.databasePath);
}

ExitCode refuse(const ExportOptions& options, const std::string& reason)
{
    const bool isStream = options.outputPath == standardStream;
    tell((isStream ? "standard output" : options.outputPath) + ": " + reason);
    return ExitCode::Failed;
}

/// Writes into a pipe or a device, which has no old contents to keep.
bool writeInto(const std::filesystem::path& path, std::string_view text)
{
    std::ofstream file(path, std::ios::binary);
    file << text;
    file.close(); // only now the last bytes are written, or not
    return file.good();
}

ExitCode writeTo(const ExportOptions& options, std::string_view text)
{
    const std::filesystem::path output = toPath(options.outputPath);
    std::error_code error;
    const bool isFile = !std::filesystem::is_other(output, error);
    errno = 0;
    if (isFile ? writeFileSafely(output, text) : writeInto(output, text))
        return ExitCode::Success;
    const std::string reason = errno == 0 ? "" : ": " + std::generic_category().message(errno);
    return refuse(options, "cannot be written" + reason);
}

} // namespace

ExitCode exportTo(const ExportOptions& options)
{
    if (isInput(options))
        return refuse(options, "is read from and not written over");
    TagDatabase database;
    RegisterMap map;
    UnsizedTexts unsized;
    if (!readDatabase(options.databasePath, database) || !readMap(options.mapPath, database.tags, map, unsized))
        return ExitCode::Failed;
    if (!unsized.isEmpty())
        tellUnsized(options.databasePath, "written with one register");
    const std::string text = isCsv(options) ? exportCsv(map) : exportTextReport(map);
    return options.outputPath == standardStream ? put(text, ExitCode::Success) : writeTo(options, text);
}
