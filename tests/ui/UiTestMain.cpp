// Runs the tests inside the toolkit's application object, with an event loop under them.

#include "tests/ui/EditorApplication.h"
#include "tests/ui/UiTest.h"
#include "ui/ToolkitText.h"

#include <gtest/gtest.h>
#include <wx/evtloop.h>

#include <cstdlib>

namespace
{

void failOnAssertion(const wxString& file, int line, const wxString& function, const wxString& condition,
                     const wxString& message)
{
    ADD_FAILURE_AT(modelText(file).c_str(), line) << "assertion of the toolkit in " << modelText(function) << ": "
                                                  << modelText(condition) << ' ' << modelText(message);
}

/// Takes away the windows that a test leaves, so that the next one starts on an empty display.
class EmptyDisplay : public testing::EmptyTestEventListener
{
    void OnTestEnd(const testing::TestInfo&) override
    {
        for (wxWindow* const window : wxTopLevelWindows)
            window->Destroy();
        EXPECT_TRUE(waitUntil([] { return wxTopLevelWindows.empty(); }));
    }
};

class UiTestApp : public EditorApplication
{
public:
    int OnRun() override
    {
        wxGUIEventLoop loop;
        const wxEventLoopActivator activator(&loop);
        const UnexpectedDialogs unexpectedDialogs;
        testing::UnitTest::GetInstance()->listeners().Append(new EmptyDisplay);
        const int result = RUN_ALL_TESTS();
        // A filter that matches nothing is a mistake in the list of tests.
        return testing::UnitTest::GetInstance()->test_to_run_count() > 0 ? result : EXIT_FAILURE;
    }
};

} // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    wxSetAssertHandler(failOnAssertion);
    wxApp::SetInstance(new UiTestApp);
    return wxEntry(argc, argv);
}
