#pragma once

#include "review/MapReview.h"
#include "tests/core/TagBuilder.h"
#include "text/Lines.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

/// A database of one number that may be written, one that may not, and one text of seven characters.
inline TagTable smallDatabase()
{
    TagTable tags;
    tags.append(tagOf("PUMP_SPEED", TagType::Numeric, 4, 2));
    tags.append(tagOf("TANK_LEVEL", TagType::Integer, 2));
    tags.append(tagOf("PLC_NAME", TagType::String, 7));
    return tags;
}

/// Lines as a file of this platform holds them.
inline std::string fileOf(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += line + std::string(nativeLineEnd);
    return text;
}

/// The findings about a file of the small database, each as "LINE rule: message".
inline std::vector<std::string> said(const std::string& bytes)
{
    std::vector<std::string> words;
    for (const Finding& finding : reviewMap(bytes, smallDatabase()))
        words.push_back(std::to_string(finding.line) + ' ' + std::string(ruleName(finding.rule)) + ": " +
                        finding.message);
    return words;
}

/// The findings about a file of these lines.
inline std::vector<std::string> saidOf(const std::vector<std::string>& lines)
{
    return said(fileOf(lines));
}

using Said = std::vector<std::string>;
