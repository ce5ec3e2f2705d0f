// Locales have names that differ from system to system; these are a POSIX system's.

#include "text/UpperCase.h"

#include <gtest/gtest.h>

#include <clocale>
#include <string>

TEST(UpperCase, IsTheSameInEveryLocale)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* locale : {"C", "C.UTF-8"})
    {
        ASSERT_NE(std::setlocale(LC_ALL, locale), nullptr) << locale;
        EXPECT_EQ(toUpperCase("title \xC3\xBC"), "TITLE \xC3\x9C") << locale;
    }
    std::setlocale(LC_ALL, before.c_str());
}
