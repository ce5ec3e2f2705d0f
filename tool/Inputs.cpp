#include "tool/Inputs.h"

#include "files/ReadFile.h"
#include "map/DefinitionReader.h"
#include "source/TagDatabaseLoader.h"
#include "text/Characters.h"
#include "text/Decode.h"
#include "tool/Messages.h"
#include "tool/Options.h"
#include "tool/Paths.h"

#include <cerrno>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <system_error>
#include <utility>
#include <variant>

namespace
{

std::optional<std::string> cannotRead(const std::string& path, const std::string& reason)
{
    tell(shownPath(path) + ": cannot be read: " + reason);
    return std::nullopt;
}

} // namespace

std::string shownPath(const std::string& path)
{
    return path == standardStream ? "<stdin>" : path;
}

std::optional<std::string> readInput(const std::string& path)
try
{
    std::string bytes;
    if (path == standardStream)
    {
        appendRest(*std::cin.rdbuf(), bytes);
        return bytes;
    }
    const std::filesystem::path source = toPath(path);
    std::error_code error;
    if (std::filesystem::is_directory(source, error))
        return cannotRead(path, "it is a folder");
    std::filebuf file;
    // Pipes are welcome: scripts name them where a file would be.
    if (file.open(source, std::ios::in | std::ios::binary) == nullptr)
        return cannotRead(path, std::generic_category().message(errno));
    if (const auto size = std::filesystem::file_size(source, error); !error)
        bytes.reserve(size);
    appendRest(file, bytes);
    return bytes;
}
catch (const std::ios_base::failure& error)
{
    return cannotRead(path, error.code().message());
}
catch (const std::exception& error)
{
    return cannotRead(path, error.what());
}

bool readDatabase(const std::string& path, TagDatabase& database)
{
    if (path.empty())
        return true;
    std::optional<std::string> bytes = readInput(path);
    if (!bytes)
        return false;
    const LoadResult result = readTagDatabase(std::move(*bytes), database);
    if (result == LoadResult::Loaded)
        return true;
    std::string_view message = loadMessage(result);
    message.remove_suffix(1); // its line end
    tell(shownPath(path) + ": " + std::string(message));
    return false;
}

bool readMap(const std::string& path, const TagTable& tags, RegisterMap& map, UnsizedTexts& unsized)
{
    std::optional<std::string> bytes = readInput(path);
    if (!bytes)
        return false;
    const std::string text = decodeText(std::move(*bytes));
    int dropped = 0;
    readDefinition(text, map, tags,
                   [&](const DefinitionFileLine& line)
                   {
                       if (!isBlankLine(line.text) && std::holds_alternative<LineFault>(line.meaning))
                           ++dropped;
                       unsized.take(line);
                   });
    if (dropped > 0)
        tell(shownPath(path) + ": lines left out as the editor does: " + std::to_string(dropped) +
             "; tolvane-map check says why");
    return true;
}

void tellUnsized(const std::string& databasePath, std::string_view consequence)
{
    const std::string reason = databasePath.empty() ? "--json is not given" : "the database does not hold their tags";
    tell("there are texts whose lines give no length, and " + reason + ": " + std::string(consequence));
}
