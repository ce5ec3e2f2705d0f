#pragma once

#include "map/DefinitionLine.h"
#include "map/RegisterMap.h"
#include "source/TagTable.h"

#include <cstddef>
#include <functional>
#include <string_view>

/// Reading the lines of a definition file: the one place that knows which of them count.

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
