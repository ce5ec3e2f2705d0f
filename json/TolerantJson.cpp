#include "json/TolerantJson.h"

#include "json/StrictJson.h"
#include "json/StrictJsonReader.h"
#include "text/Lines.h"

#include <utility>

// Reading goes in up to two rounds:
//
//   1. The text as it is goes to the reader of strict JSON. Most files need no second round.
//   2. A text that it refuses has its lines joined and is rewritten; the result goes to that reader again.
//
// So what is tolerated is said in one place, the rewriting.

namespace
{

bool readStrictJson(const std::string& text, JsonEvents& events)
{
    // Pieces are handed on at once, so a reader may have built half a database before the text proves bad.
    events.beginDocument();
    return StrictJsonReader(text, events).read();
}

} // namespace

bool readTolerantJson(std::string text, JsonEvents& events)
{
    // In strict JSON line breaks stand between tokens only, so it means the same before its lines are joined. What the
    // first round handed on of a text that it then refused is forgotten when the second one begins the document anew.
    if (readStrictJson(text, events))
        return true;
    const auto strict = toStrictJson(joinLines(std::move(text)));
    return strict && readStrictJson(*strict, events);
}
