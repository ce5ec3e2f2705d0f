// What tolvane-map promises about a map, held against the window.

#include "files/ReadFile.h"
#include "review/MapReview.h"
#include "source/TagDatabaseLoader.h"
#include "tests/core/Chance.h"
#include "tests/ui/EditorWindow.h"
#include "tests/ui/UiTest.h"
#include "text/Integers.h"
#include "text/Lines.h"

#include <gtest/gtest.h>
#include <wx/bmpbuttn.h>
#include <wx/stattext.h>

namespace
{

/// Lines for the tags of the tests' database, most of them sound.
class MapWriter
{
public:
    explicit MapWriter(std::uint32_t seed) : chance(seed) {}

    std::string map()
    {
        std::string text;
        int address = 0;
        for (int left = chance.pick(1, 12); left > 0; --left)
        {
            address += chance.pick(4, 300);
            text += "HOLDING," + addressText(static_cast<std::uint32_t>(address)) + ',' + order() + ',' + object() +
                    (chance.happens(50) ? ",LOCKED" : ",UNLOCKED") + (chance.happens(1) ? ",ERROR" : ",OK");
            text += nativeLineEnd;
        }
        return text;
    }

private:
    std::string order() { return chance.oneOf({"NONE", "BYTES", "WORDS+LONGS", "BYTES+WORDS+LONGS"}); }

    /// Type, tagname, description and count; the last ones have an error, or come back otherwise.
    std::string object()
    {
        if (chance.happens(5))
            return chance.oneOf({"INT16,PUMP_RUM,Pump runs,1", "STRING,PUMP_NAME,Maker,2", "FLOAT,TANK_LEVEL.1,Level,2",
                                 "INT32,PUMP_SPEED,Speed{,2", "INT16,PUMP_RUN,on, off,1"});
        return chance.oneOf({"INT16,PUMP_RUN,Pump runs,1", "FLOAT,PUMP_SPEED,\xC3\x9Cspeed,2",
                             "INT32,PUMP_SPEED_SP.1,Speed wanted,2", "STRING,PUMP_NAME,Maker,3",
                             "STRING,PUMP_NAME.1,,4", "DOUBLE,TANK_LEVEL,Level  in % ,4"});
    }

    Chance chance;
};

/// Opens the map, changes what no line of a file holds, and leaves with Yes.
/// @return the file's bytes then
std::string savedByTheWindow(const PlantFiles& files)
{
    EditorWindow* const editor = openEditor(files.startup());
    EXPECT_TRUE(waitUntil([&] { return editor->statusLabel->GetLabel() == "  No errors"; }));
    // As an object leaves it that was moved away and back: the exit asks because of it, and no line is written for it.
    editor->registerMap().slots(RegisterSpace::Input)[lastAddress].description = InternedText("left behind");
    const MessageBoxAnswer answer(wxID_YES);
    clickOn(*editor->button("Exit without saving"));
    EXPECT_TRUE(waitUntilGone(editor));
    EXPECT_EQ(answer.count(), 1);
    return readFile(files.startup().definition).value_or("");
}

} // namespace

TEST(ReviewedMap, WithoutFindingsOpensWithNoErrorsAndIsSavedByteForByte)
{
    TagDatabase database;
    ASSERT_EQ(loadTagDatabase(PlantFiles("").startup().database, database), LoadResult::Loaded);
    int opened = 0;
    int withFindings = 0;
    for (std::uint32_t seed = 1; opened < 6; ++seed)
    {
        const std::string map = MapWriter(seed).map();
        if (!reviewMap(map, database.tags).empty())
        {
            ASSERT_LT(++withFindings, 100) << "hardly any map is sound";
            continue;
        }
        ++opened;
        EXPECT_EQ(savedByTheWindow(PlantFiles(map)), map) << "seed " << seed;
    }
    EXPECT_GT(withFindings, 0) << "none to be told from the others";
}
