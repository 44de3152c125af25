#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QTimer>
#include <deque>
#include <set>

#include "AutomationCalls.h"

namespace quorb {

/// Offers the running viewer's automation object to other programs of the same user, on the session bus:
/// name org.quorb.QuorbExcelPro for the viewer that started first, and for every one
/// org.quorb.QuorbExcelPro.pid with its process number; path /org/quorb/QuorbExcelPro; interface
/// org.quorb.QuorbExcelPro.ClassInterface. When the first viewer ends, the one that started next takes the
/// name over.
///
/// Calls arrive on the main thread, from within its event loop, and are answered in their order, for a
/// third of the time at most: frames have their turn between, however many calls come. A call that arrives
/// while the members are refused is told so at once, so that no caller waits for a load; one that reaches the
/// process while it lets no events through is judged behind that. What a client asks that has gone before its
/// turn is left out.
class AutomationService : public QDBusVirtualObject {
 public:
  /// To be made behind the window's load sequence, and best once the window is shown: a bus that is silent
  /// holds it up for a second. One line of the window's log tells the names that are its own, or why there is
  /// no automation; another one tells later that the bus has ended.
  AutomationService();
  ~AutomationService() override;

  QString introspect(const QString& path) const override;
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

  /// How many clients have an object of their own.
  std::size_t Clients() const { return calls_.Clients(); }

 private:
  void TakeNames();
  void WatchForEndOfBus();
  void TakeTurnSoon();
  void TakeTurn();
  void Answer(const QDBusMessage& message);
  /// True for a client of this user; asks the bus once a client, and again where it gave no answer.
  bool Admits(const QString& client);
  QDBusMessage AnswerMember(const QDBusMessage& message);
  QDBusMessage AnswerProperty(const QDBusMessage& message) const;
  QVariantMap Properties() const;

  QDBusConnection bus_;
  QDBusServiceWatcher departures_;
  QTimer endOfBusTimer_;
  std::set<QString> admitted_, refused_;
  AutomationCalls calls_;
  std::deque<QDBusMessage> waiting_;
  qsizetype charactersWaiting_ = 0;
  bool turnIsDue_ = false;
  QElapsedTimer sinceTurn_;
};

}  // namespace quorb
