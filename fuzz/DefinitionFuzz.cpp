// Any bytes as a map definition file.

#include "fuzz/MemoryFile.h"
#include "fuzz/Require.h"
#include "map/DefinitionFile.h"

#include <string>

namespace
{

std::span<const std::uint8_t> bytesOf(const std::string& text)
{
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

/// The text that a map has once it was read from a file of these bytes.
std::string savedAfterReading(RegisterMap& map, std::span<const std::uint8_t> bytes)
{
    static const TagTable noTags;
    map.initialise();
    const MemoryFile file(bytes);
    require(loadDefinitionFile(file.path(), map, noTags), "a file that is there is read");
    return definitionText(map);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    // Made once: four spaces take longer to allocate than most inputs take to read.
    static RegisterMap map;
    // The first saving drops what no line can carry. From then on nothing may change any more.
    const std::string first = savedAfterReading(map, {bytes, size});
    requireSoundSlots(map);
    const std::string second = savedAfterReading(map, bytesOf(first));
    if (second != first)
        require(savedAfterReading(map, bytesOf(second)) == second, "a saved map is read back as it was");
    return 0;
}
