#pragma once

#include "review/ObjectChange.h"
#include "tool/Style.h"

#include <string>
#include <vector>

/// The differences of two maps, to be written in one of two ways.
struct ChangeReport
{
    std::string before; ///< as reports call the old map
    std::string after;  ///< as reports call the new map
    std::vector<ObjectChange> changes;
};

/// One line for each object: "+", "-" or "~", "SPACE ADDRESS TAGNAME:", what changed from what to what, and behind it
/// "[breaking]" where a polling master notices and "error: the object was locked" where nothing may change.
std::string changesAsText(const ChangeReport& report, const Style& style);

/// One JSON object with the names of the files, the counts and the changes.
std::string changesAsJson(const ChangeReport& report);

/// A line that names the file which the following lines are about.
std::string heading(std::string_view file, const Style& style);

/// The counts in words.
std::string summary(const ChangeReport& report);

/// The summary as a line of its own.
std::string conclusion(const ChangeReport& report);

/// How many objects changed in which way.
struct ChangeCounts
{
    int added = 0;
    int removed = 0;
    int moved = 0; ///< changed otherwise or not
    int changed = 0;
    int breaking = 0;
    int locked = 0; ///< objects that were locked
};

ChangeCounts countsOf(const ChangeReport& report);
