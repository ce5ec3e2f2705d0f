// The suite's documents, opened with whatever the desktop opens them with.

#include "tests/e2e/Patience.h"
#include "tests/e2e/SmallPlant.h"

#include <cstdlib>

namespace fs = std::filesystem;

namespace
{

constexpr const char* chooserTitle = "Select a document";

/// Puts a program in place of the desktop's opener that notes what it is asked to open.
class Help : public SmallPlant
{
protected:
    Help() : opened(folder / "opened"), documents(folder / "home/suite/varnokconfigure/DOCUMENTATION")
    {
        fs::create_directories(folder / "bin");
        const fs::path opener =
            folder.write("bin/xdg-open", "#!/bin/sh\nprintf %s \"$1\" > '" + opened.string() + ".new'\nmv '" +
                                             opened.string() + ".new' '" + opened.string() + "'\n");
        fs::permissions(opener, fs::perms::owner_all);
        setenv("PATH", ((folder / "bin").string() + ":" + std::getenv("PATH")).c_str(), 1);
        fs::create_directories(documents);
    }

    fs::path opened;
    fs::path documents;
};

} // namespace

TEST_F(Help, TheChosenDocumentIsOpenedByTheDesktop)
{
    const fs::path document = documents / "Register maps in brief.pdf";
    folder.write(fs::relative(document, folder.path()), "%PDF-1.4\n");
    ProgramUnderTest& program = openMap("");
    program.clickTool("Help");
    const Control chooser = program.waitForWindow(chooserTitle);
    program.openListed(chooser, document.filename().string());
    ASSERT_TRUE(waitFor([&] { return fs::exists(opened); }));
    EXPECT_EQ(contentOf(opened), document.string());
    leaveWithoutQuestion();
}

TEST_F(Help, CancellingOpensNothing)
{
    folder.write(fs::relative(documents / "guide.pdf", folder.path()), "%PDF-1.4\n");
    ProgramUnderTest& program = openMap("");
    program.clickTool("Help");
    program.clickButton(program.waitForWindow(chooserTitle), "Cancel");
    program.waitUntilClosed(chooserTitle);
    leaveWithoutQuestion();
    EXPECT_FALSE(fs::exists(opened));
}
