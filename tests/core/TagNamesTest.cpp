#include "source/TagNames.h"

#include "tests/core/TagBuilder.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

constexpr std::size_t plenty = 100;

std::vector<std::string> offered(const TagTable& tags, std::string_view typed, std::size_t most = plenty)
{
    std::vector<std::string> names;
    for (const InternedText name : namesBeginningWith(tags, typed, most))
        names.emplace_back(name.view());
    return names;
}

using Names = std::vector<std::string>;

} // namespace

TEST(TagNames, NamesThatBeginWithTheTypedTextAreOfferedInTheOrderOfTheTable)
{
    const TagTable tags = tableOf({"PUMP_RUN", "TANK_LEVEL", "PUMP_A", "XPUMP"});
    EXPECT_EQ(offered(tags, "PUM"), (Names{"PUMP_RUN", "PUMP_A"}));
    EXPECT_EQ(offered(tags, "VALVE"), Names{});
}

TEST(TagNames, SmallAndCapitalLettersAreAlike)
{
    const TagTable tags = tableOf({"Zulauf_Süd", "zulauf_SÜD", "Zulauf_Sud"});
    EXPECT_EQ(offered(tags, "ZULAUF_sü"), (Names{"Zulauf_Süd", "zulauf_SÜD"}));
}

TEST(TagNames, TheNameThatIsTypedAlreadyIsNotOffered)
{
    const TagTable tags = tableOf({"PUMP", "PUMP_RUN", "pump"});
    EXPECT_EQ(offered(tags, "PUMP"), (Names{"PUMP_RUN", "pump"}));
}

TEST(TagNames, ANameThatTheTableHoldsTwiceIsOfferedOnce)
{
    EXPECT_EQ(offered(tableOf({"PUMP_RUN", "PUMP_A", "PUMP_RUN"}), "P"), (Names{"PUMP_RUN", "PUMP_A"}));
}

TEST(TagNames, NothingTypedOffersNothing)
{
    EXPECT_EQ(offered(tableOf({"PUMP", ""}), ""), Names{});
}

TEST(TagNames, NoMoreThanTheWantedNumberIsOffered)
{
    EXPECT_EQ(offered(tableOf({"A1", "B", "A2", "A3"}), "a", 2), (Names{"A1", "A2"}));
}
