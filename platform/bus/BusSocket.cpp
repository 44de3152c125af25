#include "BusSocket.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QByteArray>
#include <QStringList>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstring>

namespace quorb {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kPatience{1000};

/// A socket that is closed with the scope.
class Socket {
 public:
  Socket() : number_(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)) {}
  ~Socket() {
    if (number_ >= 0) close(number_);
  }
  Socket(const Socket&) = delete;
  Socket& operator=(const Socket&) = delete;
  int Number() const { return number_; }

 private:
  const int number_;
};

QByteArray ValueOf(const QString& address, const QString& key) {
  for (const QString& pair : address.mid(address.indexOf(':') + 1).split(',')) {
    if (pair.startsWith(key + '=')) return QByteArray::fromPercentEncoding(pair.mid(key.size() + 1).toUtf8());
  }
  return {};
}

// The name of an abstract socket has a zero byte in front.
QByteArray SocketName(const QString& address) {
  const QByteArray abstractName = ValueOf(address, "abstract");
  if (!abstractName.isEmpty()) return QByteArray(1, '\0') + abstractName;
  if (ValueOf(address, "runtime") == "yes") return qgetenv("XDG_RUNTIME_DIR") + "/bus";
  return ValueOf(address, "path");
}

bool Connect(const Socket& bus, const QByteArray& name) {
  if (bus.Number() < 0) return false;
  sockaddr_un place = {};
  place.sun_family = AF_UNIX;
  const auto length = static_cast<std::size_t>(name.size());
  if (length == 0 || length >= sizeof place.sun_path) {
    errno = EINVAL;
    return false;
  }
  std::memcpy(place.sun_path, name.constData(), length);
  const std::size_t size = offsetof(sockaddr_un, sun_path) + length + (name[0] == '\0' ? 0 : 1);
  return connect(bus.Number(), reinterpret_cast<const sockaddr*>(&place), static_cast<socklen_t>(size)) == 0;
}

// The greeting of a client that names its user; whatever comes back is an answer.
bool Greet(const Socket& bus) {
  const QByteArray greeting =
      QByteArray(1, '\0') + "AUTH EXTERNAL " + QByteArray::number(getuid()).toHex() + "\r\n";
  return send(bus.Number(), greeting.constData(), static_cast<std::size_t>(greeting.size()), MSG_NOSIGNAL) ==
         static_cast<ssize_t>(greeting.size());
}

bool WaitForAnswer(const Socket& bus) {
  const auto deadline = Clock::now() + kPatience;
  pollfd awaited = {bus.Number(), POLLIN, 0};
  for (auto rest = kPatience; rest.count() > 0;
       rest = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now())) {
    const int ready = poll(&awaited, 1, static_cast<int>(rest.count()));
    if (ready < 0 && errno == EINTR) continue;
    char first = 0;
    return ready > 0 && recv(bus.Number(), &first, 1, 0) == 1;
  }
  return false;
}

bool Answers(const QString& address, std::string& problem) {
  const Socket bus;
  if (!Connect(bus, SocketName(address))) {
    problem = std::strerror(errno);
    return false;
  }
  if (Greet(bus) && WaitForAnswer(bus)) return true;
  problem = "it is silent";
  return false;
}

}  // namespace

QString FirstBusThatAnswers(const QString& addresses, std::string& problem) {
  for (const QString& address : addresses.split(';', Qt::SkipEmptyParts)) {
    if (Answers(address, problem)) return address;
  }
  return {};
}

}  // namespace quorb
