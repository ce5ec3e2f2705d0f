#pragma once

#include "map/DefinitionLine.h"
#include "review/Finding.h"

#include <string>
#include <string_view>
#include <vector>

/// A line of a definition file whose object the editor places; its texts are parts of the file's text.
struct PlacedLine
{
    int number = 0; ///< 1 for the first line of the file
    std::string_view text;
    DefinitionObject object;
    bool hasFinding = false; ///< something is said about it already
};

/// The placed lines of a file, first to last.
using PlacedLines = std::vector<PlacedLine>;

/// A finding about a placed line, with everything but the message filled in.
Finding findingAbout(const PlacedLine& line, Rule rule);

/// Appends a finding about a placed line.
void appendFinding(Findings& findings, const PlacedLine& line, Rule rule, std::string message);
