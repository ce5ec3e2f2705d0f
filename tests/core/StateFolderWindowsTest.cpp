#include "files/StateFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

TEST(StateFolder, IsInTheLocalApplicationDataWhateverTheUserIsCalled)
{
    const wchar_t* const variable = ::_wgetenv(L"LOCALAPPDATA");
    const std::wstring before = variable ? variable : L"";
    ::_wputenv_s(L"LOCALAPPDATA", L"C:\\Users\\J\u00fcrgen \u5927\\Local");
    EXPECT_EQ(stateFolder().wstring(), L"C:\\Users\\J\u00fcrgen \u5927\\Local\\tolvane");
    ::_wputenv_s(L"LOCALAPPDATA", L"");
    EXPECT_EQ(stateFolder(), std::filesystem::path());
    ::_wputenv_s(L"LOCALAPPDATA", before.c_str());
}
