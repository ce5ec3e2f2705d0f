// A window that is made while its document is still being loaded.

#include "map/DocumentLoading.h"
#include "tests/core/TempFolder.h"
#include "tests/ui/UiTest.h"
#include "ui/MainFrame.h"
#include "ui/ToolkitText.h"

#include <gtest/gtest.h>
#include <wx/modalhook.h>
#include <wx/msgdlg.h>

#include <algorithm>
#include <string>
#include <vector>

namespace
{

constexpr std::string_view database = R"({"structure": [{"lable": "Works", "dbprefix": ""}],
 "database": [{"Name": "NAME", "Type": "Integer", "Size": 2, "Elements": 1}]})";
constexpr std::string_view definition = "HOLDING,00010,NONE,INT16,NAME,text,1\n";

/// Makes a main window on two files and notes what there is to be seen when a message is shown.
class Opening : public testing::Test, private wxModalDialogHook
{
protected:
    Opening() { Register(); }

    void open()
    {
        DocumentLoading loading(document);
        frame = new MainFrame(document, "/suite/", chooseFileWithDialog, &loading);
    }

    void TearDown() override
    {
        // Before the document goes.
        frame->Destroy();
        EXPECT_TRUE(waitUntil([] { return wxTopLevelWindows.empty(); }));
    }

    bool hasObject() const { return document.map.slots(RegisterSpace::Holding)[10].used; }

    TempFolder folder;
    Document document{folder / "plant.json", folder / "plant.csv", 0};
    MainFrame* frame = nullptr;
    std::vector<std::string> messages;
    bool objectAtMessage = false;
    bool windowAtMessage = false;

private:
    int Enter(wxDialog* dialog) override
    {
        const auto* const box = dynamic_cast<wxMessageDialog*>(dialog);
        messages.push_back(box != nullptr ? modelText(box->GetMessage()) : "another dialog");
        objectAtMessage = hasObject();
        windowAtMessage = std::any_of(wxTopLevelWindows.begin(), wxTopLevelWindows.end(),
                                      [](const wxWindow* window) { return window->IsShown(); });
        return wxID_OK;
    }
};

} // namespace

TEST_F(Opening, GoodFilesAreShownWithoutAWord)
{
    folder.write("plant.json", database);
    folder.write("plant.csv", definition);
    open();
    EXPECT_TRUE(messages.empty());
    EXPECT_TRUE(hasObject());
    EXPECT_EQ(document.database.tags.count(), 1);
}

TEST_F(Opening, ABadDatabaseIsToldBeforeTheMapIsReadAndTheWindowSeen)
{
    folder.write("plant.json", "nonsense");
    folder.write("plant.csv", definition);
    open();
    EXPECT_EQ(messages, std::vector<std::string>{"Bad JSON format\n"});
    EXPECT_FALSE(objectAtMessage);
    EXPECT_FALSE(windowAtMessage);
    EXPECT_TRUE(hasObject());
}

TEST_F(Opening, OfTwoBadFilesTheDatabaseAloneIsTold)
{
    folder.write("plant.json", "{}");
    folder.write("plant.csv", "nonsense");
    open();
    EXPECT_EQ(messages, std::vector<std::string>{"[structure] key missing from JSON file\n"});
    EXPECT_FALSE(hasObject());
}

TEST_F(Opening, WithoutFilesTheMissingDatabaseIsToldOnce)
{
    open();
    EXPECT_EQ(messages, std::vector<std::string>{"Input file not found\n"});
    EXPECT_FALSE(document.hasUnsavedChanges());
}
