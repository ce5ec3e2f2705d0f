#include "files/KeyFile.h"

#include "files/ReadFile.h"
#include "text/Lines.h"

namespace
{

std::string_view valueOf(std::string_view text, std::string_view name)
{
    std::optional<std::string_view> value;
    bool insideGroup = false;
    forEachLine(text,
                [&](std::string_view line)
                {
                    insideGroup = insideGroup || line.starts_with('[');
                    if (!insideGroup && !value && line.starts_with(name) && line.substr(name.size()).starts_with('='))
                        value = line.substr(name.size() + 1);
                });
    return value.value_or("");
}

} // namespace

std::optional<std::string> readKeyFileEntry(const std::filesystem::path& path, std::string_view name)
{
    const auto bytes = readFile(path);
    if (!bytes)
        return std::nullopt;
    return std::string(valueOf(*bytes, name));
}
