#include "tests/e2e/EndToEnd.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>

namespace fs = std::filesystem;

void EndToEnd::TearDown()
{
    if (!HasFailure())
        return;
    const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
    std::string name = test.name();
    std::replace(name.begin(), name.end(), '/', '.');
    const fs::path picture = fs::current_path() / (name + ".ppm");
    screen.look(screen.bounds()).save(picture);
    std::cerr << "The screen at the end: " << picture.string() << '\n';
    if (running)
        std::cerr << "The program's stderr:\n" << running->errorOutput();
}

ProgramUnderTest& EndToEnd::start(const std::vector<std::string>& arguments, Installation installation)
{
    const fs::path home = folder / "home";
    fs::create_directories(home);
    running = std::make_unique<ProgramUnderTest>(screen, home, arguments, installation);
    return *running;
}

ProgramUnderTest& EndToEnd::open(const fs::path& database, const fs::path& map,
                                 const std::vector<std::string>& furtherArguments)
{
    std::vector<std::string> arguments{"-d", database.string(), "-m", map.string()};
    arguments.insert(arguments.end(), furtherArguments.begin(), furtherArguments.end());
    start(arguments);
    running->waitForMainWindow();
    return *running;
}

void EndToEnd::leaveWithoutQuestion()
{
    running->clickTool("Exit without saving");
    EXPECT_EQ(running->waitForExit(), 0);
}

void EndToEnd::leaveAnswering(const std::string& answer)
{
    running->clickTool("Exit without saving");
    const Control question = running->waitForMessage("Save changes ?", "Confirmation");
    running->clickButton(question, answer);
    EXPECT_EQ(running->waitForExit(), 0);
}

std::string contentOf(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

FileState::FileState(const fs::path& path) : content(contentOf(path)), written(fs::last_write_time(path)) {}
