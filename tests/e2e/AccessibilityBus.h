#pragma once

#include <gio/gio.h>
#include <memory>
#include <string>

/// Frees what the bus library counts references of.
struct Unreference
{
    void operator()(GVariant* value) const { g_variant_unref(value); }
    void operator()(GDBusConnection* connection) const { g_object_unref(connection); }
};

using Answer = std::unique_ptr<GVariant, Unreference>;

/// The bus on which programs describe what they show.
///
/// The bus is asked directly and not through its client library: that one keeps copies of the answers, which lag behind
/// the program, and locks up when the program changes while it is being asked.
class AccessibilityBus
{
public:
    /// Asks the session for the bus; without a session bus all answers are nothing.
    AccessibilityBus();

    /// Calls a method of an object.
    /// @param arguments  a tuple, which is taken over; may be null
    /// @return what the method returned, a tuple; nothing when it could not be called
    Answer call(const std::string& program, const std::string& path, const char* interface, const char* method,
                GVariant* arguments = nullptr) const;

private:
    std::unique_ptr<GDBusConnection, Unreference> connection;
};
