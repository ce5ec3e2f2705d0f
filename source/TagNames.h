#pragma once

#include "source/TagTable.h"

#include <cstddef>
#include <string_view>
#include <vector>

/// Names that begin with what somebody is typing, small and capital letters alike.
/// @param typed  UTF-8; no name begins with the empty text
/// @param most   how many names are wanted at most
/// @return in the order of the table, each name once, without the one that is typed already
std::vector<InternedText> namesBeginningWith(const TagTable& tags, std::string_view typed, std::size_t most);
