#include "json/StrictJson.h"

#include "json/JsonRewriter.h"
#include "json/JsonScanner.h"

// Two steps, a token at a time: the scanner knows what a token is and mends it, the rewriter knows where it may stand
// and mends what is missing between tokens. Neither looks ahead, so the text is gone through once, whatever its size.

std::optional<std::string> toStrictJson(std::string_view joined)
{
    JsonScanner scanner(joined);
    JsonRewriter rewriter(joined.size());
    for (;;)
    {
        const JsonToken token = scanner.next();
        // The end is not a token to the rewriter: whether the text may end here is another question than what may
        // follow.
        if (token == JsonToken::End)
            return rewriter.finish();
        if (!rewriter.take(token, scanner.strictText()))
            return std::nullopt;
    }
}
