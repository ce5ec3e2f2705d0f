#pragma once

#include "map/DefinitionLine.h"

#include <string>

/// The byte order of an object as files write it, such as "BYTES+WORDS" or "NONE".
inline std::string orderText(const DefinitionObject& object)
{
    std::string order;
    const auto add = [&](bool set, const char* word)
    {
        if (set)
            order += (order.empty() ? "" : "+") + std::string(word);
    };
    add(object.SwapBytes, "BYTES");
    add(object.SwapWords, "WORDS");
    add(object.SwapLongs, "LONGS");
    return order.empty() ? "NONE" : order;
}
