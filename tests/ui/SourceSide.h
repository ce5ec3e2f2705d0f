#pragma once

#include "tests/ui/EditorWindow.h"

#include <wx/treebase.h>

#include <string>
#include <vector>

class wxCheckBox;

/// Helpers of the tests that work the source side of the main window.

using Names = std::vector<std::string>;

/// The tags of the tests' plant, as the list shows them when nothing narrows it.
inline const Names allTags{"PUMP_RUN", "PUMP_SPEED", "PUMP_SPEED_SP", "PUMP_NAME", "TANK_LEVEL", "TANK_HIGH"};

/// The names in the list of tags.
Names shownTags(const EditorWindow& editor);

/// The names in the program's clipboard, one for each register that is in it.
Names clipboardNames(EditorWindow& editor);

/// The check box of a group; none when the group has none.
wxCheckBox* groupBox(const EditorWindow& editor, const wxString& flag);

/// Gives the keyboard to the list of tags and waits until it has it.
void focusTagGrid(const EditorWindow& editor);

/// The node of the tree with that label; not a valid one when there is none.
wxTreeItemId treeNode(const EditorWindow& editor, const wxString& label);

/// The labels of the nodes that the tree highlights.
Names highlightedNodes(const EditorWindow& editor);

/// Clicks on the label of a node that is in view.
void clickNode(const EditorWindow& editor, const wxString& label);

/// Clicks on the sign beside a node that folds and unfolds it, and waits until it is.
void clickFoldingSign(const EditorWindow& editor, const wxString& label);
