#pragma once

#include "text/Decode.h"
#include "text/Lines.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <string>
#include <string_view>

/// Writes JSON for tools.
/// @tparam Writer  says how it is laid out
template <class Writer>
class BasicJsonText
{
public:
    void beginObject() { writer.StartObject(); }
    void endObject() { writer.EndObject(); }
    void beginArray() { writer.StartArray(); }
    void endArray() { writer.EndArray(); }

    void key(std::string_view name) { writer.Key(name.data(), lengthOf(name)); }

    /// @param utf8  bytes that are none are taken for ISO 8859-1, since paths may be any bytes
    void text(std::string_view utf8)
    {
        const std::string decoded = decodeText(std::string(utf8));
        writer.String(decoded.data(), lengthOf(decoded));
    }

    void number(std::int64_t value) { writer.Int64(value); }
    void boolean(bool value) { writer.Bool(value); }

    void member(std::string_view name, std::string_view value)
    {
        key(name);
        text(value);
    }

    void member(std::string_view name, std::int64_t value)
    {
        key(name);
        number(value);
    }

    void memberIs(std::string_view name, bool value)
    {
        key(name);
        boolean(value);
    }

    /// @param object  a whole object, as `written` gives it
    void object(const std::string& object) { writer.RawValue(object.data(), lengthOf(object), rapidjson::kObjectType); }

    /// What was written so far.
    std::string written() const { return std::string(buffer.GetString(), buffer.GetSize()); }

protected:
    Writer& layout() { return writer; }

private:
    static rapidjson::SizeType lengthOf(std::string_view text) { return static_cast<rapidjson::SizeType>(text.size()); }

    rapidjson::StringBuffer buffer;
    Writer writer{buffer};
};

/// JSON in one line, for objects that a tool is to find, and a person to see, line by line.
using JsonLine = BasicJsonText<rapidjson::Writer<rapidjson::StringBuffer>>;

/// A whole document, indented so that people can read it too.
class JsonText : public BasicJsonText<rapidjson::PrettyWriter<rapidjson::StringBuffer>>
{
public:
    JsonText() { layout().SetIndent(' ', 1); }

    /// What was written, with a line end after it.
    std::string take() const { return written() + std::string(nativeLineEnd); }
};
