#include "files/ReadFile.h"
#include "files/windows/FileHandle.h"
#include "tests/core/TempFolder.h"
#include "tests/tool/ToolRun.h"

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

/// Opens a file that the program uses as one of its streams.
HANDLE openStream(const std::filesystem::path& path, DWORD access, DWORD creation)
{
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    return ::CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, creation, 0, nullptr);
}

/// @return what the program ended with, -1 when it was not started
int run(std::wstring line, const std::filesystem::path& folder, STARTUPINFOW& startup)
{
    PROCESS_INFORMATION process{};
    if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, folder.c_str(), &startup, &process))
        return -1;
    ::WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 0;
    ::GetExitCodeProcess(process.hProcess, &code);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return static_cast<int>(code);
}

} // namespace

ToolRun runTool(const std::vector<std::string>& arguments, const Surroundings& surroundings)
{
    const TempFolder streams;
    const std::filesystem::path output =
        surroundings.outputFile.empty() ? streams / "output" : pathOf(surroundings.outputFile);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = openStream(streams.write("input", surroundings.input), GENERIC_READ, OPEN_EXISTING);
    startup.hStdOutput = openStream(output, GENERIC_WRITE, OPEN_ALWAYS);
    startup.hStdError = openStream(streams / "errors", GENERIC_WRITE, CREATE_NEW);
    ToolRun result;
    result.exitCode = run(commandLine(arguments), pathOf(surroundings.folder), startup);
    for (const HANDLE stream : {startup.hStdInput, startup.hStdOutput, startup.hStdError})
        ::CloseHandle(stream);
    if (surroundings.outputFile.empty())
        result.output = readFile(output).value_or("");
    result.errors = readFile(streams / "errors").value_or("");
    return result;
}
