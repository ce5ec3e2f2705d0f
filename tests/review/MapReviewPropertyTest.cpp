#include "map/DefinitionFile.h"
#include "map/DefinitionReader.h"
#include "map/Validation.h"
#include "tests/core/Chance.h"
#include "tests/review/ReviewedText.h"
#include "text/Integers.h"

#include <gtest/gtest.h>

namespace
{

/// Writes files that are mostly sound, with now and then a slip of any kind.
class FileWriter
{
public:
    explicit FileWriter(std::uint32_t seed) : chance(seed), slips(chance.oneOf({0, 0, 1, 5})) {}

    std::string file()
    {
        std::string text = slip() ? "\xEF\xBB\xBF" : "";
        int address = 0;
        for (int i = chance.pick(0, 8); i > 0; --i)
        {
            address += chance.pick(4, 9);
            text += line(address) + (slip() ? otherEnd() : std::string(nativeLineEnd));
        }
        if (slip() && !text.empty())
            text.pop_back();
        return text;
    }

private:
    bool slip() { return chance.happens(slips); }

    std::string otherEnd() { return chance.oneOf({"\n", "\r\n", "\r", "\n\n", ",\n"}); }

    std::string line(int address)
    {
        if (slip())
            address = chance.oneOf({0, 65534, 65536, -1, 3});
        std::string text = slip() ? chance.oneOf({"COIL", "STATUS", "Holding", ""}) : "HOLDING";
        text += ',' + (slip() ? std::to_string(address) : addressText(static_cast<std::uint32_t>(address)));
        text += ',' + std::string(slip() ? chance.oneOf({"WORDS+BYTES", "", "xBYTESx", " NONE"})
                                         : chance.oneOf({"NONE", "BYTES", "BYTES+WORDS+LONGS"}));
        text += object();
        if (slip())
            text += chance.oneOf({",,", ",x", "{"});
        return text;
    }

    /// Type, tagname, description, count, lock and status.
    std::string object()
    {
        const std::string text = slip() ? chance.oneOf({"a{b", "a, b", "{", "\xC3\xA4", "\xFF"}) : "Words";
        const std::string end =
            std::string(slip() ? chance.oneOf({"", ",LOCKEDx", ",locked"}) : chance.oneOf({",LOCKED", ",UNLOCKED"})) +
            (slip() ? ",ERROR" : ",OK");
        switch (chance.pick(0, 3))
        {
        case 0:
            return ",FLOAT," + std::string(slip() ? "PUMP_SPEDE" : "PUMP_SPEED.1") + ',' + text + ",2" + end;
        case 1:
            return ",INT16,TANK_LEVEL" + std::string(slip() ? chance.oneOf({".1", ".2", ".1.1"}) : "") + ',' + text +
                   ",1" + end;
        case 2:
            return ",STRING,PLC_NAME," + text + (slip() ? chance.oneOf({",3", ",0", ",9", ",4x", ""}) : ",4") + end;
        default:
            return (slip() ? ",BOOL" : ",DOUBLE") + std::string(",TANK_LEVEL,") + text + ",4" + end;
        }
    }

    Chance chance;
    int slips; ///< of a hundred chances to make one
};

} // namespace

TEST(MapReviewProperty, AMapWithoutFindingsOpensWithoutErrorsAndSavesTheSameBytes)
{
    constexpr std::uint32_t files = 600;
    const TagTable tags = smallDatabase();
    RegisterMap map;
    int clean = 0;
    for (std::uint32_t seed = 1; seed <= files; ++seed)
    {
        const std::string bytes = FileWriter(seed).file();
        if (!reviewMap(bytes, tags).empty())
            continue;
        ++clean;
        for (const RegisterSpace space : allSpaces)
            clearSlots(map.slots(space), 0, 1000);
        readDefinition(bytes, map, tags);
        validateMap(map, tags);
        ASSERT_EQ(countErrors(map), 0) << "seed " << seed << '\n' << bytes;
        ASSERT_EQ(definitionText(map), bytes) << "seed " << seed;
    }
    EXPECT_GT(clean, 150) << "too few to say anything about them";
    EXPECT_LT(clean, 500) << "too few with findings to say anything about them";
}
