#include "tests/e2e/AccessibilityBus.h"

namespace
{

/// Milliseconds after which a program that does not answer counts as gone.
constexpr int answerTime = 10000;

Answer callOn(GDBusConnection* connection, const char* program, const char* path, const char* interface,
              const char* method, GVariant* arguments)
{
    return Answer(g_dbus_connection_call_sync(connection, program, path, interface, method, arguments, nullptr,
                                              G_DBUS_CALL_FLAGS_NONE, answerTime, nullptr, nullptr));
}

} // namespace

AccessibilityBus::AccessibilityBus()
{
    const std::unique_ptr<GDBusConnection, Unreference> session(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
    if (!session)
        return;
    const Answer answer = callOn(session.get(), "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", nullptr);
    if (!answer)
        return;
    const char* address = nullptr;
    g_variant_get(answer.get(), "(&s)", &address);
    const auto flags = static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                         G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
    connection.reset(g_dbus_connection_new_for_address_sync(address, flags, nullptr, nullptr, nullptr));
}

Answer AccessibilityBus::call(const std::string& program, const std::string& path, const char* interface,
                              const char* method, GVariant* arguments) const
{
    if (!connection)
        return nullptr;
    return callOn(connection.get(), program.c_str(), path.c_str(), interface, method, arguments);
}
