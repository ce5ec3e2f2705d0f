// What the main window looks like before anything is done: buttons, titles, columns, sash.

#include "tests/ui/ControlsBelow.h"
#include "tests/ui/EditorWindow.h"
#include "tests/ui/SamePicture.h"
#include "tests/ui/UiTest.h"
#include "ui/NamedImages.h"
#include "ui/ToolkitText.h"
#include "ui/grid/GridHeader.h"

#include <gtest/gtest.h>
#include <wx/bmpbuttn.h>
#include <wx/grid.h>
#include <wx/splitter.h>
#include <wx/stattext.h>

#include <algorithm>

namespace
{

/// A button as it is to be found: its picture's name and its tooltip.
struct ExpectedButton
{
    const char* image;
    const char* tooltip;
};

const std::vector<ExpectedButton> globalButtons{{"png_tool_export", "Export map to text file"},
                                                {"png_tool_settings", "Settings and Defaults"},
                                                {"png_tool_about", "About"},
                                                {"png_tool_help", "Help"},
                                                {"png_tool_exit", "Exit without saving"}};

const std::vector<ExpectedButton> sourceButtons{{"png_tool_copy", "Copy - ctrl c"}};

const std::vector<ExpectedButton> spaceButtons{{"png_tool_status", "Show Status Registers"},
                                               {"png_tool_coil", "Show Coil Registers"},
                                               {"png_tool_input", "Show Input Registers"},
                                               {"png_tool_holding", "Show Holding Registers"}};

const std::vector<ExpectedButton> mapButtons{{"png_tool_view", "Toggle view"},
                                             {"png_tool_correct", "Delete registers with errors"},
                                             {"png_tool_movedown", "Move registers down"},
                                             {"png_tool_moveup", "Move registers up"},
                                             {"png_tool_shovedown", "Shove registers down"},
                                             {"png_tool_shoveup", "Shove registers up"},
                                             {"png_tool_cut", "Cut - ctrl x"},
                                             {"png_tool_copy", "Copy - ctrl c"},
                                             {"png_tool_paste", "Paste - ctrl v"},
                                             {"png_tool_append", "Append to block"},
                                             {"png_tool_compress", "Compress registers into contiguous block"},
                                             {"png_tool_delete", "Delete - del"},
                                             {"png_tool_edit", "Edit"},
                                             {"png_tool_replace", "Tagname search and replace"},
                                             {"png_tool_lock_toggle", "Toggle register lock"}};

/// Titles of the tag grid and of the map grid.
const std::vector<std::string> sourceTitles{"TAGNAME", "TYPE", "SIZE", "FLAGS", "DESCRIPTION"};
const std::vector<std::string> mapTitles{"ADDRESS", "TAGNAME", "TYPE", "SIZE", "R/W", "ORDER", "DESCRIPTION"};

/// The controls of one kind below a window, in the order in which they stand on the screen from left to right.
template <class Control>
std::vector<Control*> leftToRight(const wxWindow& parent)
{
    std::vector<Control*> found = controlsBelow<Control>(parent);
    std::sort(found.begin(), found.end(),
              [](const Control* a, const Control* b) { return a->GetScreenPosition().x < b->GetScreenPosition().x; });
    return found;
}

std::vector<std::string> tooltips(const std::vector<wxBitmapButton*>& buttons)
{
    std::vector<std::string> texts;
    texts.reserve(buttons.size());
    for (const wxBitmapButton* const button : buttons)
        texts.push_back(modelText(button->GetToolTipText()));
    return texts;
}

std::vector<std::string> tooltips(const std::vector<ExpectedButton>& buttons)
{
    std::vector<std::string> texts;
    texts.reserve(buttons.size());
    for (const ExpectedButton& button : buttons)
        texts.emplace_back(button.tooltip);
    return texts;
}

/// Fails the test where the picture that a button shows is not the one of that name.
void expectPicture(const wxBitmapButton& button, const wxBitmap& shown, const wxString& name)
{
    const wxBitmap named = namedImage(name).GetBitmapFor(&button);
    ASSERT_TRUE(named.IsOk()) << "no picture " << modelText(name);
    EXPECT_TRUE(samePicture(shown, named))
        << modelText(button.GetToolTipText()) << " does not show " << modelText(name);
}

/// Fails the test where one of the buttons lacks a picture for one of its three states.
void expectOperationPictures(const EditorWindow& editor, const std::vector<ExpectedButton>& expected)
{
    for (const ExpectedButton& named : expected)
    {
        const wxBitmapButton& button = *editor.button(named.tooltip);
        const wxString image = named.image;
        expectPicture(button, button.GetBitmapLabel(), image);
        expectPicture(button, button.GetBitmapHover(), image + "_hover");
        expectPicture(button, button.GetBitmapPressed(), image + "_pressed");
        EXPECT_FALSE(samePicture(button.GetBitmapLabel(), button.GetBitmapHover())) << named.tooltip;
        EXPECT_FALSE(samePicture(button.GetBitmapLabel(), button.GetBitmapPressed())) << named.tooltip;
    }
}

/// Pixels between a button and the next one to the right.
int gapAfter(const std::vector<wxBitmapButton*>& buttons, std::size_t index)
{
    return buttons[index + 1]->GetScreenRect().GetLeft() - buttons[index]->GetScreenRect().GetRight();
}

/// The texts of the title row above a grid, left to right.
std::vector<wxStaticText*> titlesOf(const wxGrid& grid)
{
    const std::vector<GridHeader*> headers = leftToRight<GridHeader>(*grid.GetParent());
    return headers.size() == 1 ? leftToRight<wxStaticText>(*headers.front()) : std::vector<wxStaticText*>();
}

std::vector<std::string> texts(const std::vector<wxStaticText*>& labels)
{
    std::vector<std::string> found;
    found.reserve(labels.size());
    for (const wxStaticText* const label : labels)
        found.push_back(modelText(label->GetLabelText()));
    return found;
}

std::vector<std::string> columnLabels(wxGrid& grid)
{
    std::vector<std::string> labels;
    labels.reserve(static_cast<std::size_t>(grid.GetNumberCols()));
    for (int column = 0; column < grid.GetNumberCols(); ++column)
        labels.push_back(modelText(grid.GetColLabelValue(column)));
    return labels;
}

int widthOfColumns(const wxGrid& grid)
{
    int width = 0;
    for (int column = 0; column < grid.GetNumberCols(); ++column)
        width += grid.GetColSize(column);
    return width;
}

/// Fails the test where a title does not stand over the left edge of its column or is not 5 pixels narrower.
void expectTitlesOverColumns(const wxGrid& grid, int firstColumn)
{
    const std::vector<wxStaticText*> titles = titlesOf(grid);
    int left = grid.GetScreenPosition().x;
    for (int column = 0; column < firstColumn; ++column)
        left += grid.GetColSize(column);
    for (std::size_t i = 0; i < titles.size(); ++i)
    {
        const int width = grid.GetColSize(firstColumn + static_cast<int>(i));
        EXPECT_EQ(titles[i]->GetScreenPosition().x, left) << titles[i]->GetLabelText();
        if (i + 1 < titles.size())
        {
            EXPECT_EQ(titles[i]->GetMinSize().x, width - grid.FromDIP(5)) << titles[i]->GetLabelText();
            EXPECT_EQ(titles[i]->GetSize().x, width - grid.FromDIP(5)) << titles[i]->GetLabelText();
        }
        left += width;
    }
}

} // namespace

TEST(MainFrameButtons, GlobalButtonsStandInOrderWithAStretchBeforeAbout)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    const auto buttons = leftToRight<wxBitmapButton>(*editor.button("About")->GetParent());
    ASSERT_EQ(tooltips(buttons), tooltips(globalButtons));
    EXPECT_EQ(gapAfter(buttons, 0), gapAfter(buttons, 2));
    EXPECT_EQ(gapAfter(buttons, 2), gapAfter(buttons, 3));
    EXPECT_GT(gapAfter(buttons, 1), editor.GetSize().GetWidth() / 2);
}

TEST(MainFrameButtons, TagGridHasOneButtonInItsTitleRow)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    const wxBitmapButton* const copy = editor.sourceCopyButton();
    const wxWindow& titleRow = *copy->GetParent();
    EXPECT_EQ(tooltips(leftToRight<wxBitmapButton>(titleRow)), tooltips(sourceButtons));
    EXPECT_EQ(texts(leftToRight<wxStaticText>(titleRow)), (std::vector<std::string>{"DATABASE", "Filter"}));
    EXPECT_NE(copy, editor.button("Copy - ctrl c"));
}

TEST(MainFrameButtons, MapButtonsStandInOrderInTheirGroups)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    const wxWindow& titleRow = *editor.button("Toggle view")->GetParent();
    const auto buttons = leftToRight<wxBitmapButton>(titleRow);
    std::vector<std::string> expected = tooltips(spaceButtons);
    const std::vector<std::string> others = tooltips(mapButtons);
    expected.insert(expected.end(), others.begin(), others.end());
    ASSERT_EQ(tooltips(buttons), expected);

    const auto title = leftToRight<wxStaticText>(titleRow);
    ASSERT_EQ(texts(title), std::vector<std::string>{"MODBUS"});
    EXPECT_GE(buttons[0]->GetScreenRect().GetLeft() - title[0]->GetScreenRect().GetRight(), editor.FromDIP(20));

    const int plainGap = gapAfter(buttons, 0);
    for (std::size_t i = 0; i + 1 < buttons.size(); ++i)
    {
        const int gap = gapAfter(buttons, i) - plainGap;
        if (i == 3)
            EXPECT_GT(gap, editor.FromDIP(20)) << "the space buttons stand apart";
        else
            EXPECT_EQ(gap, i == 5 ? editor.FromDIP(7) : i == 9 ? editor.FromDIP(20) : 0) << expected[i];
    }
}

TEST(MainFrameButtons, OperationButtonsHaveAPlainAHoverAndAPressedPicture)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    expectOperationPictures(editor, globalButtons);
    expectOperationPictures(editor, mapButtons);
    const wxBitmapButton& copy = *editor.sourceCopyButton();
    expectPicture(copy, copy.GetBitmapLabel(), "png_tool_copy");
    expectPicture(copy, copy.GetBitmapHover(), "png_tool_copy_hover");
    expectPicture(copy, copy.GetBitmapPressed(), "png_tool_copy_pressed");
}

TEST(MainFrameButtons, SpaceButtonsHaveNoHoverPictureInAnySpace)
{
    const PlantFiles files("");
    EditorWindow& editor = *openEditor(files.startup());
    const auto expectShown = [&editor](const std::string& current)
    {
        for (const ExpectedButton& named : spaceButtons)
        {
            const wxBitmapButton& button = *editor.button(named.tooltip);
            const wxString image = named.image;
            expectPicture(button, button.GetBitmapLabel(), image == current ? image + "_pressed" : image);
            expectPicture(button, button.GetBitmapPressed(), image + "_pressed");
            EXPECT_FALSE(button.GetBitmapHover().IsOk()) << named.tooltip;
        }
    };
    expectShown("png_tool_holding");
    clickOn(*editor.button("Show Status Registers"));
    ASSERT_TRUE(waitUntil([&] { return editor.registerMap().currentSpace == RegisterSpace::Status; }));
    expectShown("png_tool_status");
}

TEST(MainFrameButtons, ButtonsStandOnTheBackgroundOfTheTopBar)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    for (const auto* const group : {&globalButtons, &spaceButtons, &mapButtons})
    {
        for (const ExpectedButton& named : *group)
            EXPECT_EQ(editor.button(named.tooltip)->GetBackgroundColour(),
                      editor.button("About")->GetParent()->GetBackgroundColour())
                << named.tooltip;
    }
}

TEST(MainFrameButtons, TitleRowsNameTheColumnsAndStandOverThem)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    EXPECT_EQ(texts(titlesOf(*editor.sourceGrid)), sourceTitles);
    EXPECT_EQ(texts(titlesOf(*editor.mapGrid)), mapTitles);
    expectTitlesOverColumns(*editor.sourceGrid, 0);
    expectTitlesOverColumns(*editor.mapGrid, 1);
}

TEST(MainFrameButtons, GridsHaveTheirOwnLabelsHidden)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    EXPECT_EQ(columnLabels(*editor.sourceGrid),
              (std::vector<std::string>{"Name", "Type", "Size", "Flags", "Description", "DbIndex"}));
    EXPECT_EQ(columnLabels(*editor.mapGrid),
              (std::vector<std::string>{"*", "Address", "Name", "Type", "Size", "Write", "Order", "Description"}));
    for (const wxGrid* const grid : {editor.sourceGrid, editor.mapGrid})
    {
        EXPECT_EQ(grid->GetColLabelSize(), 0);
        EXPECT_EQ(grid->GetRowLabelSize(), 0);
        EXPECT_EQ(grid->GetDefaultRowSize(), grid->FromDIP(25));
        EXPECT_FALSE(grid->GridLinesEnabled());
        EXPECT_EQ(grid->GetSelectionMode(), wxGrid::wxGridSelectRows);
    }
    EXPECT_FALSE(editor.mapGrid->CanDragColMove());
    EXPECT_FALSE(editor.mapGrid->CanDragColSize(2));
}

TEST(MainFrameButtons, ColumnsOpenWithTheirWidthsAndTheLastOneTakesTheRest)
{
    const PlantFiles files("");
    EditorWindow& editor = *openEditor(files.startup());
    const std::vector<int> sourceWidths{170, 70, 50, 70};
    const std::vector<int> mapWidths{20, 60, 170, 60, 40, 50, 50};
    for (std::size_t i = 0; i < sourceWidths.size(); ++i)
        EXPECT_EQ(editor.sourceGrid->GetColSize(static_cast<int>(i)), editor.FromDIP(sourceWidths[i])) << i;
    for (std::size_t i = 0; i < mapWidths.size(); ++i)
        EXPECT_EQ(editor.mapGrid->GetColSize(static_cast<int>(i)), editor.FromDIP(mapWidths[i])) << i;
    EXPECT_EQ(editor.sourceGrid->GetColSize(5), 0);
    for (const wxGrid* const grid : {editor.sourceGrid, editor.mapGrid})
        EXPECT_EQ(widthOfColumns(*grid), grid->GetSize().GetWidth() - grid->FromDIP(20));
}

TEST(MainFrameButtons, SashOpensInTheMiddle)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    const auto* const splitter = dynamic_cast<wxSplitterWindow*>(editor.mapGrid->GetParent()->GetParent());
    ASSERT_NE(splitter, nullptr);
    EXPECT_EQ(splitter->GetSplitMode(), wxSPLIT_VERTICAL);
    EXPECT_EQ(splitter->GetSashPosition(), splitter->GetSize().GetWidth() / 2);
}
