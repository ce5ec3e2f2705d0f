#include "json/StrictJson.h"

#include "json/JsonRewriter.h"
#include "json/JsonScanner.h"

std::optional<std::string> toStrictJson(std::string_view joined)
{
    JsonScanner scanner(joined);
    JsonRewriter rewriter(joined.size());
    for (;;)
    {
        const JsonToken token = scanner.next();
        if (token == JsonToken::End)
            return rewriter.finish();
        if (!rewriter.take(token, scanner.strictText()))
            return std::nullopt;
    }
}
