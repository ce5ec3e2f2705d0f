#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What may be wrong with a line of a definition file, in the order in which one line's findings are told.
enum class Rule : std::uint8_t
{
    DroppedLine,  ///< the editor drops the line
    BadNumber,    ///< an address or the count of a text is no whole number and is read as another
    UnknownType,  ///< the type is no known one and is read as INT16
    UnknownOrder, ///< the byte order holds a word that is none of its four
    UnknownLock,  ///< the lock is neither "LOCKED" nor "UNLOCKED"
    CutOff,       ///< not all registers lie in 0..65535
    Overlap,      ///< it takes registers of an earlier line
    NoTagname,    ///< the tagname is empty, with the error marks that come of it
    UnknownTag,   ///< error mark: no tag has the name
    BadType,      ///< error mark: the type does not suit the tag
    BadWrite,     ///< error mark: the tag cannot be written
    BlankLine,    ///< the line is empty and will be gone after saving
    IgnoredCount, ///< the count is no number, but the type says how many registers there are
    Brace,        ///< the description is read up to its "{" only
    BitSpace,     ///< more than a bit in a space of single bits
    OtherForm,    ///< saving writes the line in another form
    Order,        ///< saving writes the line at another place
    Encoding      ///< saving writes other bytes for the same text
};

/// Number of rules.
constexpr std::size_t ruleCount = 18;

/// How bad a finding is.
enum class Severity : std::uint8_t
{
    Error,  ///< the map is not what it seems, or does not work
    Warning ///< it works, but is unusual or will be written differently
};

/// The word for a rule in reports, such as "unknown-tag".
std::string_view ruleName(Rule rule);

/// How bad what a rule finds is.
Severity severityOf(Rule rule);

/// One thing to say about one line of a definition file.
struct Finding
{
    Rule rule = Rule::DroppedLine;
    int line = 1;                        ///< 1 or above
    std::string space;                   ///< the line's first field; empty when the line has no object fields
    std::optional<std::int32_t> address; ///< of the object's head, as the editor reads it
    std::string tagname;                 ///< without write suffix; as it stands on a dropped line
    std::string message;                 ///< what is wrong, one line of UTF-8
    int otherLine = 0;                   ///< the other line that has to do with it, 0 for none
    std::string suggestion;              ///< the tag name that may be meant; empty for none
    int marks = 0;                       ///< error marks that the editor counts for it
};

/// What was found, by line and rule.
using Findings = std::vector<Finding>;
