#include "source/TagBatch.h"

namespace
{

/// Few enough for the processor's first caches.
constexpr std::size_t batchSize = 256;

} // namespace

void TagBatch::add(const TagRecord& tag, std::string_view name, std::string_view description, TagTable& table)
{
    tags.push_back(tag);
    hold(name);
    hold(description);
    if (tags.size() == batchSize)
        flush(table);
}

void TagBatch::flush(TagTable& table)
{
    std::vector<std::string_view> pieces;
    pieces.reserve(lengths.size());
    std::size_t start = 0;
    for (const std::size_t length : lengths)
    {
        pieces.push_back(std::string_view(texts).substr(start, length));
        start += length;
    }
    std::vector<InternedText> handles(pieces.size());
    InternedText::internAll(pieces, handles);
    for (std::size_t i = 0; i < tags.size(); ++i)
    {
        tags[i].name = handles[2 * i];
        tags[i].description = handles[2 * i + 1];
        table.append(tags[i]);
    }
    clear();
}

void TagBatch::clear()
{
    tags.clear();
    texts.clear();
    lengths.clear();
}

void TagBatch::hold(std::string_view text)
{
    texts += text;
    lengths.push_back(text.size());
}
