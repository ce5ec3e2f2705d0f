#pragma once

#include "map/DefinitionLine.h"
#include "map/RegisterMap.h"
#include "source/TagTable.h"

#include <array>
#include <cstddef>
#include <functional>
#include <string_view>

/// Reading the lines of a definition file: the one place that knows which of them count.

/// How many fields a line has that describes an object.
constexpr std::size_t fullForm = 9;
constexpr std::size_t formWithoutLock = 7;  ///< ends after the register count
constexpr std::size_t formWithoutCount = 6; ///< ends after the description

/// The fields of one line. One more than the full form is kept, enough to tell that a line has too many.
struct SplitLine
{
    std::array<std::string_view, fullForm + 1> fields; ///< empty from `count` on
    std::size_t count = 0;
};

/// Splits at every comma; an empty field after a final comma is not counted.
SplitLine splitLine(std::string_view line);

/// A line of a definition file and what the reader made of it.
struct DefinitionFileLine
{
    int number = 0;             ///< 1 for the first line of the file
    std::string_view text;      ///< the line as it stands, without its end
    std::size_t fieldCount = 0; ///< fields that it has; 10 stands for any more
    DefinitionFields fields;    ///< lock and status are filled in where the line does not give them; so is the count of
                                ///< six fields, which lasts for the call alone
    bool isLengthGuessed = false; ///< a STRING of six fields whose tag the database does not hold: one register
    LineMeaning meaning;          ///< the object that was placed, or why the line was dropped
};

/// Is told each line, dropped ones too, first to last.
using LineObserver = std::function<void(const DefinitionFileLine&)>;

/// Places the objects of a definition file's text; lines of 9, 7 or 6 fields count, all others are dropped.
/// @param text      UTF-8, lines ended in any way
/// @param tags      sizes the STRING objects of 6-field lines
/// @param observer  may be empty; the map shows the objects after the last line only
/// @return true when saving would write a line for each object that was placed, with the byte order that it names
/// @throws std::bad_alloc when there is not enough memory; the map then holds any part of the objects
bool readDefinition(std::string_view text, RegisterMap& map, const TagTable& tags, const LineObserver& observer = {});
