#include "SessionBus.h"

#include <unistd.h>

#include <QDBusError>
#include <QDBusMessage>
#include <QFileInfo>
#include <QUrl>

#include "BusSocket.h"

namespace quorb {

namespace {

constexpr const char* kBusName = "org.freedesktop.DBus";
constexpr int kPatienceMilliseconds = 1000;

// A list of addresses, each with its way in front; the way "unix" leads to a socket of this machine.
bool AllAreSockets(const QString& addresses) {
  for (const QString& address : addresses.split(';', Qt::SkipEmptyParts)) {
    if (!address.startsWith("unix:")) return false;
  }
  return !addresses.isEmpty();
}

QDBusMessage AskBus(const QDBusConnection& bus, const char* member, const QVariantList& arguments) {
  QDBusMessage question = QDBusMessage::createMethodCall(kBusName, "/org/freedesktop/DBus", kBusName, member);
  question.setArguments(arguments);
  return bus.call(question, QDBus::Block, kPatienceMilliseconds);
}

std::string WhyNotOurs(BusUser user) {
  return user == BusUser::other ? "the session bus is another user's"
                                : "the session bus does not tell whose it is";
}

}  // namespace

QString SessionBusAddress() {
  const QString addresses = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
  if (!addresses.isEmpty()) return AllAreSockets(addresses) ? addresses : QString();
  const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
  if (runtime.isEmpty() || !QFileInfo::exists(runtime + "/bus")) return {};
  return "unix:path=" + QString::fromLatin1(QUrl::toPercentEncoding(runtime + "/bus", "/"));
}

QDBusConnection ConnectToSessionBus(std::string& problem) {
  const QString name = "QuorbExcelPro automation";
  const QString addresses = SessionBusAddress();
  if (addresses.isEmpty()) {
    problem = "there is no session bus";
    return QDBusConnection(name);
  }
  // The library would wait for half a minute behind a socket that is silent.
  const QString address = FirstBusThatAnswers(addresses, problem);
  if (address.isEmpty()) {
    problem = "the session bus does not answer: " + problem;
    return QDBusConnection(name);
  }
  problem.clear();
  QDBusConnection bus = QDBusConnection::connectToBus(address, name);
  if (!bus.isConnected()) {
    problem = "the session bus does not answer: " + bus.lastError().message().toStdString();
    return bus;
  }
  const BusUser user = UserBehind(bus, kBusName);
  if (user == BusUser::same) return bus;
  problem = WhyNotOurs(user);
  QDBusConnection::disconnectFromBus(name);
  return bus;
}

BusUser UserBehind(const QDBusConnection& bus, const QString& name) {
  const QDBusMessage answer = AskBus(bus, "GetConnectionUnixUser", {name});
  if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != "u") return BusUser::unknown;
  return answer.arguments().constFirst().toUInt() == getuid() ? BusUser::same : BusUser::other;
}

NameOutcome AskForName(const QDBusConnection& bus, const QString& name) {
  constexpr uint kWaitForIt = 0;
  constexpr uint kOwned = 1, kInQueue = 2, kOwnedBefore = 4;
  const QDBusMessage answer = AskBus(bus, "RequestName", {name, kWaitForIt});
  if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != "u") return NameOutcome::refused;
  const uint code = answer.arguments().constFirst().toUInt();
  if (code == kOwned || code == kOwnedBefore) return NameOutcome::owned;
  return code == kInQueue ? NameOutcome::waiting : NameOutcome::refused;
}

bool GiveName(const QDBusConnection& bus, const QString& name) {
  return AskBus(bus, "ReleaseName", {name}).type() == QDBusMessage::ReplyMessage;
}

}  // namespace quorb
