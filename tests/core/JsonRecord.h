#pragma once

#include "json/JsonEvents.h"

#include <string>

/// Writes down what it receives: {}, [], name=, 'text', and - for a literal.
class JsonRecord : public JsonEvents
{
public:
    void beginDocument() override { written.clear(); }
    void beginObject() override { written += '{'; }
    void endObject() override { written += '}'; }
    void beginArray() override { written += '['; }
    void endArray() override { written += ']'; }
    void key(std::string_view name) override { written.append(name).append("="); }
    void text(std::string_view content) override { written.append("'").append(content).append("'"); }
    void literal() override { written += '-'; }

    std::string written;
};
