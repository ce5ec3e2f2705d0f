#pragma once

#include "map/DefinitionReader.h"

/// What of a definition file is lost when it is read and then saved over.

/// True when saving writes back all that the line says, in the same characters or in others.
///
/// Lost is what a dropped line says, a remark for people too, a text behind "{", a type or an order that is none, a
/// count other than the type's, and whatever stands behind a number or a lock. Nothing is said by a line of blanks and
/// commas alone, a leading zero, the order of the byte-order names, an empty field, and the status.
bool isWrittenBack(const DefinitionFileLine& line);
