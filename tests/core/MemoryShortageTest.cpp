// What needs more memory than there is leaves map and files as they were.

#include "files/ReadFile.h"
#include "map/DefinitionFile.h"
#include "map/Document.h"
#include "map/TagnameReplace.h"
#include "tests/core/MapBuilder.h"
#include "tests/core/MemoryLimit.h"
#include "tests/core/TempFolder.h"

#include <gtest/gtest.h>

#include <numeric>
#include <set>
#include <string>

namespace
{

class MemoryShortage : public testing::Test
{
protected:
    const RegisterEntry& holding(int address) const { return map.slots(RegisterSpace::Holding)[address]; }

    TempFolder folder;
    TagTable tags;
    RegisterMap map;
};

} // namespace

TEST_F(MemoryShortage, DefinitionFileThatNeedsMoreMemoryThanThereIsGivesAnEmptyMapAndNeverHalfOfOne)
{
    std::string text;
    for (int line = 0; line < 300'000; ++line)
        text += "HOLDING," + std::to_string(line % 60'000) + ",NONE,INT16,SHORT_OF_MEMORY" + std::to_string(line) +
                ",text,1\n";
    // A line that says nothing; larger than what threads of earlier tests may have set aside for themselves.
    text.append(std::size_t{80} << 20U, 'x');
    const std::filesystem::path file = folder.write("map.csv", text);
    // The bytes of the file alone are too many for the first limit, and the last one is enough for everything.
    std::set<bool> outcomes;
    for (const std::size_t megabytes : {30U, 96U, 104U, 112U, 120U, 128U, 152U, 200U})
    {
        map.initialise();
        const MemoryLimit limit(megabytes << 20U);
        const bool loaded = isLoaded(loadDefinitionFile(file, map, tags));
        outcomes.insert(loaded);
        EXPECT_TRUE(!loaded || megabytes > 30) << megabytes;
        EXPECT_EQ(map.isModified(), loaded) << megabytes;
        EXPECT_EQ(holding(0).used, loaded) << megabytes;
        EXPECT_EQ(holding(59'999).used, loaded) << megabytes;
    }
    EXPECT_EQ(outcomes, (std::set<bool>{false, true})) << "the limits are too much alike";
}

TEST_F(MemoryShortage, SavingWhatNeedsMoreMemoryThanThereIsLeavesTheFile)
{
    RegisterEntry entry;
    entry.description = InternedText(std::string(10'000, 'x'));
    for (const RegisterSpace space : allSpaces)
    {
        for (int address = 0; address < registersPerSpace; ++address)
            map.placeObject(space, address, entry, 1);
    }
    const std::filesystem::path file = folder.write("map.csv", "as it was");
    {
        const MemoryLimit limit(std::size_t{1} << 28U);
        EXPECT_FALSE(saveDefinitionFile(file, map));
    }
    EXPECT_EQ(readFile(file), "as it was");
    EXPECT_TRUE(holding(65'535).used);
}

TEST_F(MemoryShortage, NamesThatNeedMoreMemoryThanThereIsChangeNothing)
{
    const auto slots = drawnSpace(0, std::string(20'000, 'A'));
    const auto before = std::make_unique<RegisterSlots>(*slots);
    std::vector<int> addresses(20'000);
    std::iota(addresses.begin(), addresses.end(), 0);
    const std::string long16Kilobytes(1U << 14U, 'x');
    {
        const MemoryLimit limit(std::size_t{1} << 26U);
        EXPECT_FALSE(replaceInTagnames(*slots, addresses, "A", long16Kilobytes));
    }
    EXPECT_TRUE(*slots == *before);
    EXPECT_EQ(InternedText::known(long16Kilobytes), std::nullopt);
    EXPECT_TRUE(replaceInTagnames(*slots, addresses, "A", "B"));
    EXPECT_EQ((*slots)[19'999].tagname.view(), "B");
}

TEST_F(MemoryShortage, FileThatWasTooLargeToReadIsKeptBesideTheSavedOneOrNothingIsWritten)
{
    const std::filesystem::path file = folder.write("map.csv", "");
    std::filesystem::resize_file(file, std::uintmax_t{100} << 20U);
    Document document("", file, 0);
    {
        const MemoryLimit limit(std::size_t{50} << 20U);
        document.loadDefinition();
        document.map.placeObject(RegisterSpace::Input, 4, freeSlot(4), 1);
        EXPECT_FALSE(document.saveDefinition());
    }
    EXPECT_EQ(std::filesystem::file_size(file), std::uintmax_t{100} << 20U);
    EXPECT_TRUE(document.saveDefinition());
    EXPECT_EQ(std::filesystem::file_size(folder / "map.csv~"), std::uintmax_t{100} << 20U);
    EXPECT_EQ(readFile(file), definitionText(document.map));
}

TEST_F(MemoryShortage, DocumentHoldsTheWholeMapOrNoneAndHasNothingToSave)
{
    // Every slot is an object of its own: what tells whether it was changed is as large as the map.
    std::string text;
    for (const char* const space : {"COIL", "INPUT", "STATUS", "HOLDING"})
    {
        for (int address = 0; address < registersPerSpace; ++address)
            text += std::string(space) + "," + std::to_string(address) + ",NONE,INT16,SHORT_OF_MEMORY" +
                    std::to_string(address % 2) + ",,1\n";
    }
    const std::filesystem::path file = folder.write("map.csv", text);
    std::set<bool> outcomes;
    for (std::size_t megabytes = 10; megabytes <= 80; megabytes += 5)
    {
        Document document("", file, 0);
        const MemoryLimit limit(megabytes << 20U);
        document.loadDefinition();
        const bool used = document.map.slots(RegisterSpace::Coil)[0].used;
        outcomes.insert(used);
        EXPECT_EQ(document.map.slots(RegisterSpace::Holding)[lastAddress].used, used) << megabytes;
        EXPECT_FALSE(document.hasUnsavedChanges()) << megabytes;
    }
    EXPECT_EQ(outcomes, (std::set<bool>{false, true})) << "the limits are too much alike";
}
