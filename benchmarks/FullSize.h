#pragma once

#include <string>

/// Inputs of the largest size that the program takes: a made-up plant of 65,536 tags, and maps of all its 262,144
/// registers. Every call makes them anew from the same rules, so runs compare with each other.

/// A tag database of 65,536 tags, 1,033 structure nodes and 16 groups, printed with one member a line, about 13 MB.
/// @param series  0 for the plant that the maps are made of; another one gives a plant that shares no name with it
std::string fullDatabaseJson(int series = 0);

/// A definition file that fills all four spaces with the plant's 65,536 objects of mixed types, 32 registers for every
/// eight of them.
std::string mapOfObjects();

/// A definition file of 262,144 objects of one register each; every space holds each of the 65,536 names once. The
/// texts among them are too short for their tags and therefore in error.
std::string mapOfSingleRegisters();
