#include "tool/Arguments.h"

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

// Needs the header above.
#include <shellapi.h>

// `main` gets its arguments in the code page of the user, where a character that it lacks is a "?". They are fetched
// anew from the system.

namespace
{

std::string utf8(const std::wstring& text)
{
    const auto length = static_cast<int>(text.size());
    const auto convert = [&](char* bytes, int size)
    { return ::WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes, size, nullptr, nullptr); };
    std::string bytes(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
    convert(bytes.data(), static_cast<int>(bytes.size()));
    return bytes;
}

} // namespace

std::vector<std::string> commandLineArguments(int /*argc*/, char** /*argv*/)
{
    int count = 0;
    wchar_t** const arguments = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::vector<std::string> texts;
    for (int i = 1; arguments != nullptr && i < count; ++i)
        texts.push_back(utf8(arguments[i]));
    ::LocalFree(static_cast<void*>(arguments));
    return texts;
}
