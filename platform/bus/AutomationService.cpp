#include "AutomationService.h"

#include <QCoreApplication>
#include <QDBusVariant>
#include <algorithm>
#include <string>

#include "LoaderLink.h"
#include "SessionBus.h"

namespace quorb {

namespace {

constexpr const char* kName = "org.quorb.QuorbExcelPro";
constexpr const char* kPath = "/org/quorb/QuorbExcelPro";
constexpr const char* kInterface = "org.quorb.QuorbExcelPro.ClassInterface";
constexpr const char* kProperties = "org.freedesktop.DBus.Properties";
constexpr const char* kBusy = "org.quorb.QuorbExcelPro.Error.Busy";
constexpr const char* kOutOfRange = "org.quorb.QuorbExcelPro.Error.OutOfRange";
constexpr const char* kReadOnly = "org.freedesktop.DBus.Error.PropertyReadOnly";
constexpr std::size_t kMostWaiting = 1000;
constexpr qsizetype kMostCharactersWaiting = 8000000;
constexpr qint64 kShortestTurn = 8, kLongestTurn = 50;  // milliseconds
constexpr const char* kNoProperty = "org.freedesktop.DBus.Error.UnknownProperty";

constexpr const char* kIntrospection = R"(  <interface name="org.quorb.QuorbExcelPro.ClassInterface">
    <method name="InterFaceXls">
      <arg name="MessageUserToPlot" type="s" direction="in"/>
      <arg name="FlagOptionToPlot" type="i" direction="in"/>
    </method>
    <method name="GlrayonXls">
      <arg name="str" type="s" direction="in"/>
      <arg name="FactorScale" type="d" direction="in"/>
    </method>
    <method name="GlrayonXlsT">
      <arg name="str" type="s" direction="in"/>
      <arg name="FactorScale" type="d" direction="in"/>
    </method>
    <method name="GlEventsXls">
      <arg name="str" type="s" direction="in"/>
      <arg name="FactorScale" type="d" direction="in"/>
    </method>
    <property name="Title" type="s" access="read"/>
    <property name="LastPoint" type="i" access="read"/>
    <property name="NbEvents" type="i" access="read"/>
    <property name="FlagOptionToPlot" type="i" access="read"/>
    <property name="FactorScale" type="d" access="read"/>
    <property name="Busy" type="b" access="read"/>
    <annotation name="org.freedesktop.DBus.Property.EmitsChangedSignal" value="false"/>
  </interface>
)";

QString OwnName() {
  return QString(kName) + ".pid" + QString::number(QCoreApplication::applicationPid());
}

void Log(const std::string& line) {
  LoaderLinkOfWindow().AppendLog(line);
}

QDBusMessage WrongArguments(const QDBusMessage& message) {
  return message.createErrorReply(QDBusError::InvalidArgs,
                                  "The arguments of " + message.member() + " are not those of the interface");
}

QDBusMessage ReplyOf(const QDBusMessage& message, const InterfaceFault& fault) {
  if (fault.Good()) return message.createReply();
  const QString text = QString::fromStdString(fault.description);
  if (fault.number == kFaultBusy) return message.createErrorReply(kBusy, text);
  const QString numbered = QString::number(fault.number) + ": " + text;
  if (fault.number == kFaultOutOfBounds) return message.createErrorReply(kOutOfRange, numbered);
  return message.createErrorReply(QDBusError::InvalidArgs, numbered);
}

qsizetype CharactersOf(const QDBusMessage& message) {
  const QVariantList arguments = message.arguments();
  return arguments.isEmpty() ? 0 : arguments.constFirst().toString().size();
}

using BlockCall = InterfaceFault (AutomationCalls::*)(const std::string&, std::string_view, double);

BlockCall BlockCallNamed(const QString& member) {
  if (member == "GlrayonXls") return &AutomationCalls::GlrayonXls;
  if (member == "GlrayonXlsT") return &AutomationCalls::GlrayonXlsT;
  if (member == "GlEventsXls") return &AutomationCalls::GlEventsXls;
  return nullptr;
}

}  // namespace

AutomationService::AutomationService() : bus_(QString()) {
  sinceTurn_.start();
  std::string problem;
  bus_ = ConnectToSessionBus(problem);
  if (problem.empty() && !bus_.registerVirtualObject(kPath, this))
    problem = "the session bus does not take the object";
  if (!problem.empty()) {
    Log("Automation is off: " + problem + ".");
    return;
  }
  departures_.setConnection(bus_);
  departures_.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
  connect(&departures_, &QDBusServiceWatcher::serviceUnregistered, this, [this](const QString& client) {
    departures_.removeWatchedService(client);
    admitted_.erase(client);
    refused_.erase(client);
    calls_.Forget(client.toStdString());
  });
  WatchForEndOfBus();
  TakeNames();
}

// The connection calls named slots only, and this class has none of its own: the timer's start stands in.
void AutomationService::WatchForEndOfBus() {
  endOfBusTimer_.setSingleShot(true);
  connect(&endOfBusTimer_, &QTimer::timeout, this,
          [] { Log("Automation is off: the session bus has ended."); });
  bus_.connect(QString(), "/org/freedesktop/DBus/Local", "org.freedesktop.DBus.Local", "Disconnected",
               &endOfBusTimer_, SLOT(start()));
}

void AutomationService::TakeNames() {
  const QString own = OwnName();
  std::string names;
  if (AskForName(bus_, own) == NameOutcome::owned) names = own.toStdString();
  if (AskForName(bus_, kName) == NameOutcome::owned)
    names = names.empty() ? kName : std::string(kName) + ", " + names;
  if (!names.empty()) return Log("Automation is on: " + names);
  Log("Automation is off: the session bus does not give the name.");
}

AutomationService::~AutomationService() {
  bus_.unregisterObject(kPath);
  if (bus_.isConnected() && GiveName(bus_, kName)) GiveName(bus_, OwnName());
  QDBusConnection::disconnectFromBus(bus_.name());
}

QString AutomationService::introspect(const QString& path) const {
  return path == kPath ? kIntrospection : QString();
}

bool AutomationService::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
  const bool ofMembers = message.interface() == kInterface ||
                         (message.interface().isEmpty() && message.member() != "Introspect");
  if (!ofMembers && message.interface() != kProperties) return false;
  QDBusMessage refusal;
  if (!Admits(message.service())) {
    refusal = message.createErrorReply(QDBusError::AccessDenied, "Only programs of the same user are served");
  } else if (ofMembers && calls_.Busy()) {
    refusal = ReplyOf(message, BusyFault());
  } else if (waiting_.size() >= kMostWaiting || charactersWaiting_ >= kMostCharactersWaiting) {
    refusal = message.createErrorReply(kBusy, "Too many calls wait: call again");
  } else {
    waiting_.push_back(message);
    charactersWaiting_ += CharactersOf(message);
    TakeTurnSoon();
    return true;
  }
  if (message.isReplyRequired()) connection.send(refusal);
  return true;
}

// Each turn has a timer of its own: one that waits behind a message box would hold up those that fire there.
void AutomationService::TakeTurnSoon() {
  if (turnIsDue_ || waiting_.empty()) return;
  turnIsDue_ = true;
  QTimer::singleShot(0, this, [this] { TakeTurn(); });
}

// Half as long as all else has taken since the turn before, a frame for the most part.
void AutomationService::TakeTurn() {
  turnIsDue_ = false;
  const qint64 most = std::clamp(sinceTurn_.elapsed() / 2, kShortestTurn, kLongestTurn);
  QElapsedTimer turn;
  turn.start();
  while (!waiting_.empty() && turn.elapsed() < most) {
    const QDBusMessage message = waiting_.front();
    waiting_.pop_front();
    charactersWaiting_ -= CharactersOf(message);
    TakeTurnSoon();  // the answer may show a message, and let the others through meanwhile
    Answer(message);
  }
  sinceTurn_.start();
}

void AutomationService::Answer(const QDBusMessage& message) {
  if (admitted_.count(message.service()) == 0) return;  // it has gone
  const QDBusMessage answer =
      message.interface() == kProperties ? AnswerProperty(message) : AnswerMember(message);
  if (message.isReplyRequired()) bus_.send(answer);
}

// The watch comes before the question: a client that is there at the answer is seen when it goes.
bool AutomationService::Admits(const QString& client) {
  if (admitted_.count(client) != 0) return true;
  if (refused_.count(client) != 0) return false;
  departures_.addWatchedService(client);
  switch (UserBehind(bus_, client)) {
    case BusUser::same:
      admitted_.insert(client);
      return true;
    case BusUser::other:
      refused_.insert(client);
      return false;
    case BusUser::unknown:
      departures_.removeWatchedService(client);
      return false;
  }
  return false;
}

QDBusMessage AutomationService::AnswerMember(const QDBusMessage& message) {
  const std::string client = message.service().toStdString();
  const QVariantList arguments = message.arguments();
  if (message.member() == "InterFaceXls") {
    if (message.signature() != "si") return WrongArguments(message);
    const std::string title = arguments[0].toString().toStdString();
    return ReplyOf(message, calls_.InterFaceXls(client, title, arguments[1].toInt()));
  }
  const BlockCall call = BlockCallNamed(message.member());
  if (call == nullptr)
    return message.createErrorReply(QDBusError::UnknownMethod, "There is no member " + message.member());
  if (message.signature() != "sd") return WrongArguments(message);
  const std::string block = arguments[0].toString().toStdString();
  return ReplyOf(message, (calls_.*call)(client, block, arguments[1].toDouble()));
}

QVariantMap AutomationService::Properties() const {
  const PlotOnShow plot = PresentPlot();
  return {{"Title", QString::fromStdString(plot.title)},
          {"LastPoint", plot.lastPoint},
          {"NbEvents", plot.nbEvents},
          {"FlagOptionToPlot", plot.flagOptionToPlot},
          {"FactorScale", plot.factorScale},
          {"Busy", calls_.Busy()}};
}

QDBusMessage AutomationService::AnswerProperty(const QDBusMessage& message) const {
  const QVariantList arguments = message.arguments();
  const QString interface = arguments.isEmpty() ? QString("none") : arguments[0].toString();
  const bool ofOurs = interface == kInterface || interface.isEmpty();  // an empty name stands for any
  const QVariantMap properties = ofOurs ? Properties() : QVariantMap();
  if (message.member() == "GetAll" && message.signature() == "s") return message.createReply(properties);
  const QString name = arguments.size() > 1 ? arguments[1].toString() : QString();
  const bool known = properties.contains(name);
  if (message.member() == "Get" && message.signature() == "ss" && known)
    return message.createReply(QVariant::fromValue(QDBusVariant(properties[name])));
  if (message.member() == "Set" && message.signature() == "ssv" && known)
    return message.createErrorReply(kReadOnly, name + " can only be read");
  if (message.signature().startsWith("ss"))
    return message.createErrorReply(kNoProperty, "There is no property " + name);
  return WrongArguments(message);
}

}  // namespace quorb
