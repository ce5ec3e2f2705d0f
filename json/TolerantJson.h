#pragma once

#include <string>
#include <string_view>

/// Receives a JSON document piece by piece, in the order of the text.
class JsonEvents
{
public:
    virtual ~JsonEvents() = default;

    /// The document begins. A text that turns out not to be strict is read a second time: what was received is void.
    virtual void beginDocument() = 0;

    /// An object begins; its members follow, each as its key and its value.
    virtual void beginObject() = 0;

    /// The innermost object is complete.
    virtual void endObject() = 0;

    /// An array begins; its elements follow.
    virtual void beginArray() = 0;

    /// The innermost array is complete.
    virtual void endArray() = 0;

    /// The name of a member, whose value follows.
    /// @param name  UTF-8, valid during the call
    virtual void key(std::string_view name) = 0;

    /// A string, or the decimal text of a number.
    /// @param content  UTF-8, valid during the call
    virtual void text(std::string_view content) = 0;

    /// One of true, false and null.
    virtual void literal() = 0;
};

/// Reads a JSON document whose writers need not have been strict; `toStrictJson` lists what is tolerated.
///
/// Line breaks count for nothing: a string that is broken across lines is one string, and a comment that begins with
/// "//" takes in all further lines. Depth costs no call stack.
/// @param text    UTF-8
/// @param events  receives the document; of a text that is not JSON, some beginning of it
/// @return false when it is not JSON even so, or when its root is neither an object nor an array
bool readTolerantJson(std::string text, JsonEvents& events);
