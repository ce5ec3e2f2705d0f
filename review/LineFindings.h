#pragma once

#include "map/DefinitionReader.h"
#include "review/Finding.h"
#include "review/PlacedLine.h"

/// Says why the editor drops a line.
/// @param fault  the line's own
Finding droppedLineFinding(const DefinitionFileLine& line, LineFault fault);

/// Appends what a placed line alone shows to be wrong: numbers that are none, registers outside the space, a brace in
/// its description, unknown words, more than a bit in a space of single bits.
/// @param line    as the reader tells it
/// @param placed  the same line
void appendLineFindings(Findings& findings, const DefinitionFileLine& line, const PlacedLine& placed);
