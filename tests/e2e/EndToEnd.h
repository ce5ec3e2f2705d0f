#pragma once

#include "tests/core/TempFolder.h"
#include "tests/e2e/ProgramUnderTest.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// A test that uses the program as a person does. It works in a folder of its own, which goes with it.
/// A failing test leaves a picture of the screen in the folder it was started in.
class EndToEnd : public testing::Test
{
protected:
    void TearDown() override;

    /// Starts the program without waiting for it.
    ProgramUnderTest& start(const std::vector<std::string>& arguments,
                            Installation installation = Installation::Present);

    /// Starts the program on a database and a map and waits for its main window.
    ProgramUnderTest& open(const std::filesystem::path& database, const std::filesystem::path& map,
                           const std::vector<std::string>& furtherArguments = {});

    /// Leaves through the exit button, which must not ask, and checks that the program ends well.
    void leaveWithoutQuestion();

    /// Leaves through the exit button, answers its question, and checks that the program ends well.
    /// @param answer  "Yes" or "No"
    void leaveAnswering(const std::string& answer);

    const TempFolder folder;
    PrivateScreen screen;

private:
    std::unique_ptr<ProgramUnderTest> running;
};

/// A file's whole content.
std::string contentOf(const std::filesystem::path& path);

/// A file's content and when it was last written: equal ones show that nobody has touched it.
struct FileState
{
    explicit FileState(const std::filesystem::path& path);

    std::string content;
    std::filesystem::file_time_type written;

    friend bool operator==(const FileState&, const FileState&) = default;
};
