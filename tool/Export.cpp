#include "tool/Export.h"

#include "files/SafeWrite.h"
#include "map/MapExport.h"
#include "tool/Inputs.h"
#include "tool/Messages.h"

#include <filesystem>
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
    return writeFileSafely(options.outputPath, text) ? ExitCode::Success : refuse(options, "cannot be written");
}
