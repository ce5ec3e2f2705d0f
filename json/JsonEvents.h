#pragma once

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
