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

/// What reading a file and saving the map gives.
struct Saved
{
    DefinitionLoad load;
    std::string text;
};

Saved savedAfterReading(RegisterMap& map, std::span<const std::uint8_t> bytes)
{
    static const TagTable noTags;
    map.initialise();
    const MemoryFile file(bytes);
    const DefinitionLoad load = loadDefinitionFile(file.path(), map, noTags);
    require(isLoaded(load), "a file that is there is read");
    requireSoundSlots(map);
    return {load, definitionText(map)};
}

std::string withoutByteOrder(RegisterMap& map)
{
    for (const RegisterSpace space : allSpaces)
    {
        for (RegisterEntry& slot : map.slots(space))
            slot.SwapBytes = slot.SwapWords = slot.SwapLongs = false;
    }
    return definitionText(map);
}

bool sameSlots(const RegisterMap& one, const RegisterMap& other)
{
    for (const RegisterSpace space : allSpaces)
    {
        if (one.slots(space) != other.slots(space))
            return false;
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    // Made once: four spaces take longer to allocate than most inputs take to read.
    static RegisterMap map;
    static RegisterMap again;
    const Saved first = savedAfterReading(map, {bytes, size});
    const Saved second = savedAfterReading(again, bytesOf(first.text));
    if (first.load == DefinitionLoad::Whole)
    {
        require(second.text == first.text && sameSlots(map, again), "what is written back whole is read back the same");
        require(second.load == DefinitionLoad::Whole, "what was written back whole once always is");
    }
    // The first saving drops what no line can carry. From then on nothing may change any more but byte orders: each
    // saving may give one more object that of the object under it.
    savedAfterReading(map, bytesOf(second.text));
    require(withoutByteOrder(map) == withoutByteOrder(again), "a saved map is read back as it was");
    return 0;
}
