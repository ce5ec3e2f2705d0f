#include "files/KeyFile.h"

#include "files/ReadFile.h"
#include "text/Lines.h"

// A key file, and what counts in it when "Path" is asked for:
//
//   Path=C:\Suite\          the value, backslash included: nothing is escaped, so any folder can be named
//   Path=D:\Suite\          nothing, since the first entry of a name holds
//   [Recent]                from here on entries belong to a group
//   Path=E:\Suite\          nothing

namespace
{

std::string_view valueOf(std::string_view text, std::string_view name)
{
    std::optional<std::string_view> value;
    bool insideGroup = false;
    forEachLine(text,
                [&](std::string_view line)
                {
                    // Groups do not end, they are only followed by others: after the first one no entry is outside.
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
