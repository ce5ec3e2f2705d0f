#include "review/UnsizedTexts.h"

#include "map/RegisterSlots.h"

#include <algorithm>
#include <variant>

void UnsizedTexts::take(const DefinitionFileLine& line)
{
    const auto* const object = std::get_if<DefinitionObject>(&line.meaning);
    if (object != nullptr && RegisterSlots::contains(object->start))
        spaces[static_cast<std::size_t>(object->space)].set(static_cast<std::size_t>(object->start),
                                                            line.isLengthGuessed);
}

bool UnsizedTexts::isEmpty() const
{
    return std::ranges::none_of(spaces, [](const auto& heads) { return heads.any(); });
}
