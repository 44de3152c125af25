// A client of the automation object, for the tests: bus-client flood RATE SECONDS | burst CALLS | block BYTES
// | title BYTES | stage
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QElapsedTimer>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>

namespace {

QDBusMessage Member(const char* name) {
  return QDBusMessage::createMethodCall("org.quorb.QuorbExcelPro", "/org/quorb/QuorbExcelPro",
                                        "org.quorb.QuorbExcelPro.ClassInterface", name);
}

QDBusMessage Points(const QString& block, double factor) {
  QDBusMessage message = Member("GlrayonXls");
  message << block << factor;
  return message;
}

QDBusMessage Title(const QString& text) {
  QDBusMessage message = Member("InterFaceXls");
  message << text << 0;
  return message;
}

/// 64 points of a ring that turns from call to call.
QString Ring(int call) {
  QString block;
  for (int i = 0; i < 64; ++i) {
    const double angle = 0.1 * i + 0.01 * call;
    block += QString("%1\t%2\t%3\r\n").arg(9000 * std::cos(angle)).arg(9000 * std::sin(angle)).arg(i);
  }
  return block;
}

/// Calls at an even rate, none of which waits for the one before.
class Flood {
 public:
  Flood(int rate, int seconds) : rate_(rate), calls_(rate * seconds) {
    QObject::connect(&timer_, &QTimer::timeout, [this] { SendDue(); });
    time_.start();
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.start(1);
  }

 private:
  void SendDue() {
    const qint64 due = std::min<qint64>(calls_, time_.elapsed() * rate_ / 1000);
    for (; sent_ < due; ++sent_)
      Send();
    if (sent_ == calls_ && answered_ + failed_ == calls_) End();
  }
  void Send() {
    const qint64 begin = time_.nsecsElapsed();
    auto* watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(Points(Ring(sent_), 1)));
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, [this, watcher, begin] {
      slowest_ = std::max(slowest_, time_.nsecsElapsed() - begin);
      ++(watcher->isError() ? failed_ : answered_);
      watcher->deleteLater();
    });
  }
  void End() {
    timer_.stop();
    std::printf("answered %d failed %d seconds %.2f slowest %.1f ms\n", answered_, failed_,
                static_cast<double>(time_.elapsed()) / 1e3, static_cast<double>(slowest_) / 1e6);
    QCoreApplication::quit();
  }

  int rate_, calls_, sent_ = 0, answered_ = 0, failed_ = 0;
  qint64 slowest_ = 0;
  QElapsedTimer time_;
  QTimer timer_;
};

/// Calls that are all sent before any answer is looked at.
class Burst {
 public:
  explicit Burst(int calls) : calls_(calls) {
    const QString block = Ring(0);
    for (int call = 0; call < calls; ++call) {
      auto* watcher =
          new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(Points(block, 1), kPatience));
      QObject::connect(watcher, &QDBusPendingCallWatcher::finished, [this, watcher] { Take(*watcher); });
    }
    std::printf("sent\n");
    std::fflush(stdout);
  }

 private:
  static constexpr int kPatience = 60000;

  void Take(const QDBusPendingCallWatcher& watcher) {
    const bool isBusy = watcher.isError() && watcher.error().name() == "org.quorb.QuorbExcelPro.Error.Busy";
    ++(!watcher.isError() ? answered_ : isBusy ? busy_ : failed_);
    if (answered_ + busy_ + failed_ < calls_) return;
    std::printf("answered %d busy %d failed %d\n", answered_, busy_, failed_);
    QCoreApplication::quit();
  }

  const int calls_;
  int answered_ = 0, busy_ = 0, failed_ = 0;
};

int CallOnce(const QDBusMessage& message) {
  constexpr int kMostMilliseconds = 60000;
  const QDBusMessage answer = QDBusConnection::sessionBus().call(message, QDBus::Block, kMostMilliseconds);
  const bool good = answer.type() == QDBusMessage::ReplyMessage;
  std::printf("%s\n", good ? "good" : answer.errorName().toUtf8().constData());
  std::fflush(stdout);
  return good ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  const QStringList words = QCoreApplication::arguments();
  if (words.value(1) == "flood" && words.size() == 4) {
    const Flood flood(words[2].toInt(), words[3].toInt());
    return QCoreApplication::exec();
  }
  if (words.value(1) == "burst" && words.size() == 3) {
    const Burst burst(words[2].toInt());
    return QCoreApplication::exec();
  }
  if (words.value(1) == "block" && words.size() == 3) {
    const QString rows = "10\t0\t0\r\n0\t20\t0\r\n0\t20\t10";
    return CallOnce(Points(rows + QString(words[2].toInt() - rows.size() - 2, ' ') + "\r\n", 1));
  }
  if (words.value(1) == "title" && words.size() == 3) return CallOnce(Title(QString(words[2].toInt(), 'W')));
  // Stages a part and never comes to the rest.
  if (words.value(1) == "stage" && CallOnce(Points(Ring(0), 0)) == 0) return QCoreApplication::exec();
  return 2;
}
