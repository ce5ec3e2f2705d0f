#include "tool/Export.h"

#include "files/SafeWrite.h"
#include "map/MapExport.h"
#include "tool/Inputs.h"
#include "tool/Messages.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace
{

constexpr std::string_view standardOutput = "-";

bool isCsv(const ExportOptions& options)
{
    if (options.format != ExportChoice::ByName)
        return options.format == ExportChoice::Csv;
    return exportFormatFor(options.outputPath) == ExportFormat::Csv;
}

/// An export cannot be read back: written over the map or the database it would destroy what it was made from.
bool isInput(const ExportOptions& options)
{
    std::error_code error;
    return std::filesystem::equivalent(options.outputPath, options.mapPath, error) ||
           (!options.databasePath.empty() &&
            std::filesystem::equivalent(options.outputPath, options.databasePath, error));
}

/// Why a file cannot be written, as the system says it; empty when it does not say.
std::string reasonAgainst(const std::filesystem::path& path)
{
    std::error_code error;
    if (std::filesystem::is_directory(path, error))
        return ": it is a folder";
    const bool exists = std::filesystem::exists(path, error);
    const std::filesystem::path folder = path.has_parent_path() ? path.parent_path() : ".";
    if (!exists && std::filesystem::exists(folder, error))
        return {};
    std::filebuf file; // for reading and writing, which makes and changes nothing
    if (file.open(path, std::ios::in | std::ios::out | std::ios::binary) != nullptr)
        return {};
    return ": " + std::generic_category().message(errno);
}

ExitCode refuse(const ExportOptions& options, const std::string& reason)
{
    tell(options.outputPath + ": " + reason);
    return ExitCode::Failed;
}

} // namespace

ExitCode exportTo(const ExportOptions& options)
{
    if (options.outputPath != standardOutput && isInput(options))
        return refuse(options, "is read from and not written over");
    TagDatabase database;
    RegisterMap map;
    if (!readDatabase(options.databasePath, database) || !readMap(options.mapPath, database.tags, map))
        return ExitCode::Failed;
    const std::string text = isCsv(options) ? exportCsv(map) : exportTextReport(map);
    if (options.outputPath == standardOutput)
        return put(text, ExitCode::Success);
    return writeFileSafely(options.outputPath, text)
               ? ExitCode::Success
               : refuse(options, "cannot be written" + reasonAgainst(options.outputPath));
}
