#pragma once

#include "map/RegisterMap.h"
#include "source/TagTable.h"

#include <memory>
#include <string>

/// Inputs of the largest size that the program takes: a made-up plant of 65,536 tags, and maps of all its 262,144
/// registers. Every call makes them anew from the same rules, so runs compare with each other.

/// A tag database of 65,536 tags, 1,033 structure nodes and 16 groups, printed with one member a line, about 13 MB.
/// @param series  0 for the plant that the maps are made of; another one gives a plant that shares no name with it
std::string fullDatabaseJson(int series = 0);

/// The tags of the plant, as they stand in the table after loading.
TagTable fullTags();

/// One line for each tag, its name and its description: what a search through the plant has to look at.
std::string fullTagLines();

/// Fills all four spaces with the plant's 65,536 objects of mixed types, 32 registers for every eight of them.
void fillWithObjects(RegisterMap& map);

/// Fills all four spaces with objects of one register each; every space holds each of the 65,536 names once. The
/// texts among them are too short for their tags and therefore in error.
void fillWithSingleRegisters(RegisterMap& map);

/// A copy of one space to go back to between two measurements.
std::unique_ptr<RegisterSlots> copyOf(const RegisterSlots& slots);
