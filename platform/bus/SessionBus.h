#pragma once

#include <QDBusConnection>
#include <QString>
#include <string>

namespace quorb {

/// Where this session's bus listens on this machine: DBUS_SESSION_BUS_ADDRESS, or without it the socket
/// $XDG_RUNTIME_DIR/bus. Empty when there is none, or when it is reached in another way than by a socket. No
/// bus is started by looking for one.
QString SessionBusAddress();

/// A connection of its own to the session bus of this process's user. A bus that does not answer within a
/// second is given up.
/// @param problem out: why there is none, in words that end a sentence; empty when there is one.
QDBusConnection ConnectToSessionBus(std::string& problem);

/// Whose process stands behind a name on the bus.
enum class BusUser {
  same,     ///< This process's user.
  other,    ///< Somebody else.
  unknown,  ///< The bus does not know, the name has gone, or there was no answer within a second.
};
BusUser UserBehind(const QDBusConnection& bus, const QString& name);

/// What asking for a name on the bus came to.
enum class NameOutcome {
  owned,    ///< It is this connection's.
  waiting,  ///< Another connection has it; this one is next, or one of the next.
  refused,  ///< The bus did not give it, or gave no answer within a second.
};
NameOutcome AskForName(const QDBusConnection& bus, const QString& name);

/// Gives a name back, also one that was only waited for, so that the next one has it at once. False when the
/// bus gave no answer within a second.
bool GiveName(const QDBusConnection& bus, const QString& name);

}  // namespace quorb
