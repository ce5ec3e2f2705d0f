// A tag database and a map definition file together, from opening to saving. A line "===" stands between the two.

#include "fuzz/MemoryFile.h"
#include "fuzz/Require.h"
#include "map/DefinitionFile.h"
#include "map/Document.h"
#include "map/MapExport.h"
#include "map/MapRow.h"
#include "map/MapView.h"
#include "map/Validation.h"

#include <algorithm>
#include <string_view>

namespace
{

constexpr std::string_view separator = "\n===\n";

std::span<const std::uint8_t> bytesOf(std::string_view text)
{
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

/// Asks for every row that a view shows, as the grid does while it is scrolled.
void lookAtEveryRow(const RegisterSlots& slots, ViewMode mode)
{
    for (const int address : shownAddresses(slots, mode))
    {
        const MapRow row = fillMapRow(slots[address]);
        require(!row[static_cast<std::size_t>(MapColumn::Address)].text.empty(), "every row shows an address");
    }
}

void lookAtTheMap(const RegisterMap& map)
{
    for (const RegisterSpace space : allSpaces)
    {
        const RegisterSlots& slots = map.slots(space);
        lookAtEveryRow(slots, ViewMode::Expanded);
        lookAtEveryRow(slots, ViewMode::Compressed);
        require(shownAddresses(slots, ViewMode::All).size() == static_cast<std::size_t>(registersPerSpace),
                "ALL shows every register");
    }
}

/// Validating what is valid already changes nothing.
void requireStableMarks(Document& document)
{
    const int errors = countErrors(document.map);
    document.map.takeSnapshot();
    document.validate();
    require(!document.map.isModified() && countErrors(document.map) == errors, "validating twice is validating once");
}

std::ptrdiff_t objectsOf(const RegisterMap& map)
{
    std::ptrdiff_t objects = 0;
    for (const RegisterSpace space : allSpaces)
        objects += std::ssize(shownAddresses(map.slots(space), ViewMode::Compressed));
    return objects;
}

void requireOneExportLineAnObject(const RegisterMap& map)
{
    const std::string csv = exportCsv(map);
    require(std::count(csv.begin(), csv.end(), '\n') >= objectsOf(map) + 1, "an export has a line for each object");
    require(exportTextReport(map).starts_with("Modbus Register Map"), "a report has its title");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const std::string_view input(reinterpret_cast<const char*>(bytes), size);
    const std::size_t cut = input.find(separator);
    const std::string_view rest = cut == std::string_view::npos ? "" : input.substr(cut + separator.size());
    const MemoryFile database(bytesOf(input.substr(0, cut)));
    const MemoryFile definition(bytesOf(rest));

    Document document(database.path(), definition.path(), 0);
    document.loadDatabase();
    document.loadDefinition();
    requireSoundSlots(document.map);
    lookAtTheMap(document.map);
    requireStableMarks(document);
    requireOneExportLineAnObject(document.map);

    const MemoryFile saved(bytesOf(definitionText(document.map)));
    Document again(database.path(), saved.path(), 0);
    again.loadDatabase();
    again.loadDefinition();
    requireSoundSlots(again.map);
    // What no line can carry, a comma in a description for one, is gone by now; no object has come.
    require(objectsOf(again.map) <= objectsOf(document.map), "saving and reading makes no object");
    return 0;
}
