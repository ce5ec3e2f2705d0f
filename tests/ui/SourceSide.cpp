#include "tests/ui/SourceSide.h"

#include "tests/ui/ControlsBelow.h"
#include "tests/ui/MenuScript.h"
#include "tests/ui/UiTest.h"
#include "ui/ToolkitText.h"

#include <gtest/gtest.h>
#include <wx/checkbox.h>
#include <wx/grid.h>
#include <wx/scrolwin.h>
#include <wx/treectrl.h>

#include <functional>

namespace
{

/// Visits a node and those below it.
void visitNodes(const wxTreeCtrl& tree, const wxTreeItemId& node, const std::function<void(const wxTreeItemId&)>& visit)
{
    if (!node.IsOk())
        return;
    // The hidden root is no node of the plant, and on Windows nothing may be asked about it.
    if (node != tree.GetRootItem())
        visit(node);
    wxTreeItemIdValue cookie = nullptr;
    for (wxTreeItemId child = tree.GetFirstChild(node, cookie); child.IsOk(); child = tree.GetNextChild(node, cookie))
        visitNodes(tree, child, visit);
}

wxRect labelRect(const wxTreeCtrl& tree, const wxTreeItemId& node)
{
    wxRect rect;
    EXPECT_TRUE(waitUntil([&] { return tree.GetBoundingRect(node, rect, true) && !rect.IsEmpty(); }));
    return rect;
}

} // namespace

Names shownTags(const EditorWindow& editor)
{
    Names names;
    for (int row = 0; row < editor.sourceGrid->GetNumberRows(); ++row)
        names.push_back(modelText(editor.sourceGrid->GetCellValue(row, 0)));
    return names;
}

Names clipboardNames(EditorWindow& editor)
{
    Names names;
    for (const RegisterEntry& entry : editor.registerMap().clipboard)
        names.emplace_back(entry.tagname.view());
    return names;
}

wxCheckBox* groupBox(const EditorWindow& editor, const wxString& flag)
{
    for (wxCheckBox* const box : controlsBelow<wxCheckBox>(*editor.groupFilters))
    {
        if (box->GetLabelText() == flag)
            return box;
    }
    return nullptr;
}

void focusTagGrid(const EditorWindow& editor)
{
    editor.sourceGrid->SetFocus();
    EXPECT_TRUE(waitUntil([&] { return editor.sourceGrid->GetGridWindow()->HasFocus(); }));
}

wxTreeItemId treeNode(const EditorWindow& editor, const wxString& label)
{
    const wxTreeCtrl& tree = *editor.sourceTree;
    wxTreeItemId found;
    visitNodes(tree, tree.GetRootItem(),
               [&](const wxTreeItemId& node)
               {
                   if (tree.GetItemText(node) == label)
                       found = node;
               });
    return found;
}

Names highlightedNodes(const EditorWindow& editor)
{
    const wxTreeCtrl& tree = *editor.sourceTree;
    Names labels;
    visitNodes(tree, tree.GetRootItem(),
               [&](const wxTreeItemId& node)
               {
                   if (tree.IsVisible(node) && tree.IsSelected(node))
                       labels.push_back(modelText(tree.GetItemText(node)));
               });
    return labels;
}

void clickNode(const EditorWindow& editor, const wxString& label)
{
    const wxRect rect = labelRect(*editor.sourceTree, treeNode(editor, label));
    leftClickOn(*editor.sourceTree, rect.x + rect.width / 2, rect.y + rect.height / 2);
}

void clickFoldingSign(const EditorWindow& editor, const wxString& label)
{
    const wxTreeCtrl& tree = *editor.sourceTree;
    const wxTreeItemId node = treeNode(editor, label);
    const bool before = tree.IsExpanded(node);
    const wxRect rect = labelRect(tree, node);
    const int y = rect.y + rect.height / 2;
    int x = rect.x;
    int part = 0;
    while (x > 0 && (part & wxTREE_HITTEST_ONITEMBUTTON) == 0)
        tree.HitTest(wxPoint(--x, y), part);
    leftClickOn(tree, x - 2, y);
    EXPECT_TRUE(waitUntil([&] { return tree.IsExpanded(node) != before; })) << modelText(label);
}
