#include "files/ReadFile.h"
#include "tests/core/TempFolder.h"
#include "tests/tool/ToolRun.h"

#include <array>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

namespace
{

std::filesystem::path pathOf(const std::string& utf8)
{
    return std::u8string(utf8.begin(), utf8.end());
}

/// An argument as programs take a command line apart: quotes, and the backslashes in front of them, are marked.
std::wstring quoted(const std::string& argument)
{
    std::wstring text = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : pathOf(argument).wstring())
    {
        if (c == L'"')
            text.append(backslashes + 1, L'\\');
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        text += c;
    }
    return text.append(backslashes, L'\\') + L'"';
}

std::wstring commandLine(const std::vector<std::string>& arguments)
{
    std::wstring line = quoted(TOLVANE_MAP);
    for (const std::string& argument : arguments)
        line += L' ' + quoted(argument);
    return line;
}

SECURITY_ATTRIBUTES inherited()
{
    return {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
}

/// Opens a file that the program uses as one of its streams.
HANDLE openStream(const std::filesystem::path& path, DWORD access, DWORD creation)
{
    SECURITY_ATTRIBUTES forProgram = inherited();
    return ::CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, &forProgram, creation, 0, nullptr);
}

/// Runs the program to its end.
/// @return what it ended with, -1 when it was not started
int run(const std::vector<std::string>& arguments, const std::string& folder, HANDLE input, HANDLE output,
        HANDLE errors)
{
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = input;
    startup.hStdOutput = output;
    startup.hStdError = errors;
    std::wstring line = commandLine(arguments);
    PROCESS_INFORMATION process{};
    DWORD code = static_cast<DWORD>(-1);
    if (::CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, pathOf(folder).c_str(), &startup,
                         &process))
    {
        ::WaitForSingleObject(process.hProcess, INFINITE);
        ::GetExitCodeProcess(process.hProcess, &code);
        ::CloseHandle(process.hThread);
        ::CloseHandle(process.hProcess);
    }
    return static_cast<int>(code);
}

/// What stands in the first lines of a console's screen, each filled up with blanks.
std::string textOn(HANDLE screen)
{
    std::wstring text(1000, L' ');
    DWORD length = 0;
    ::ReadConsoleOutputCharacterW(screen, text.data(), static_cast<DWORD>(text.size()), {0, 0}, &length);
    const std::u8string utf8 = std::filesystem::path(text.substr(0, length)).u8string();
    return {utf8.begin(), utf8.end()};
}

} // namespace

ToolRun runTool(const std::vector<std::string>& arguments, const Surroundings& surroundings)
{
    const TempFolder streams;
    const bool isKept = !surroundings.outputFile.empty();
    const std::filesystem::path output = isKept ? pathOf(surroundings.outputFile) : streams / "output";
    const std::array files{openStream(streams.write("input", surroundings.input), GENERIC_READ, OPEN_EXISTING),
                           openStream(output, GENERIC_WRITE, OPEN_ALWAYS),
                           openStream(streams / "errors", GENERIC_WRITE, CREATE_NEW)};
    ToolRun result;
    result.exitCode = run(arguments, surroundings.folder, files[0], files[1], files[2]);
    for (const HANDLE file : files)
        ::CloseHandle(file);
    if (!isKept)
        result.output = readFile(output).value_or("");
    result.errors = readFile(streams / "errors").value_or("");
    return result;
}

ToolRun runToolOnTerminal(const std::vector<std::string>& arguments, const Surroundings& surroundings)
{
    SECURITY_ATTRIBUTES forProgram = inherited();
    const HANDLE screen = ::CreateConsoleScreenBuffer(GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                                      &forProgram, CONSOLE_TEXTMODE_BUFFER, nullptr);
    ToolRun result;
    result.exitCode = run(arguments, surroundings.folder, nullptr, screen, screen);
    result.output = textOn(screen);
    ::CloseHandle(screen);
    return result;
}
