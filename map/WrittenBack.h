#pragma once

#include "map/DefinitionReader.h"

/// What of a definition file is lost when it is read and then saved over.

/// True when saving writes back all that the line says, in the same characters or in others.
///
/// Lost is what a dropped line says, a remark for people too, a text from "{" on, a type or an order that is none, a
/// count other than the type's, whatever stands in a number's field or a lock's beside it, and a length that the
/// database was to give and could not. Nothing is said by a line of blanks and commas alone, a leading zero, the order
/// of the byte-order names, an empty order, count or lock, and the status.
bool isWrittenBack(const DefinitionFileLine& line);
