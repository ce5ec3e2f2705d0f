#pragma once

#include "map/RegisterMap.h"
#include "review/ObjectChange.h"
#include "review/UnsizedTexts.h"

#include <vector>

/// Compares two maps object by object.
///
/// An object of the same tagname at the same address is the same one, whatever else changed. Of the others, one of the
/// same tagname and type at another address has moved, the first to the first in the order of the map, inside a space
/// before across spaces. What is left is removed or added: another tagname at an address is another object.
/// An object counts as changed, too, when another one has taken registers of it, or has given them back.
/// Only objects that a file has a line for are compared, and not what validation says about them.
/// Where the length of a text is not known, its size does not count as a difference.
/// @param unsizedBefore  texts of the old map whose length is not known
/// @param unsizedAfter   the same of the new map
/// @return by space and address of the object now, or where it was when it is gone; at one address the removed one
///         comes first
std::vector<ObjectChange> mapDifferences(const RegisterMap& before, const RegisterMap& after,
                                         const UnsizedTexts& unsizedBefore = {}, const UnsizedTexts& unsizedAfter = {});
