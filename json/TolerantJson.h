#pragma once

#include "json/JsonEvents.h"

#include <string>

/// Reads a JSON document whose writers need not have been strict; `toStrictJson` lists what is tolerated.
///
/// Line breaks count for nothing: a string that is broken across lines is one string, and a comment that begins with
/// "//" takes in all further lines. Depth costs no call stack.
/// @param text    UTF-8
/// @param events  receives the document; of a text that is not JSON, some beginning of it
/// @return false when it is not JSON even so, or when its root is neither an object nor an array
bool readTolerantJson(std::string text, JsonEvents& events);
