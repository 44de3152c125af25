#include "OfficeSockets.h"

#include <dirent.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string_view>
#include <thread>
#include <utility>

namespace quorb {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr std::string_view kGreeting = "InternalIPC::SendArguments";
constexpr std::string_view kTaken = "InternalIPC::ProcessingDone";

// Where an office makes its sockets.
std::vector<std::string> SystemSocketDirectories() {
  return {"/tmp", "/var/tmp"};
}

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  int Number() const { return number_; }

 private:
  int number_;
};

// How often a wait looks whether it was cut.
constexpr milliseconds kWaitStep{10};

// An end to waiting: a time, or that somebody cuts it.
struct Limit {
  steady_clock::time_point deadline;
  const std::atomic<bool>* cut;

  bool Over() const { return (cut != nullptr && *cut) || steady_clock::now() > deadline; }
};

// Waits for one of `events`; false when it did not come.
bool Wait(int socketNumber, short events, const Limit& limit) {
  while (!limit.Over()) {
    pollfd waited{socketNumber, events, 0};
    const int ready = poll(&waited, 1, static_cast<int>(kWaitStep.count()));
    if (ready > 0) return true;
    if (ready < 0 && errno != EINTR) return false;
  }
  return false;
}

enum class Heard { expected, other, tooLate };

// Reads a text that ends in a zero byte and compares it.
Heard Listen(int socketNumber, std::string_view expected, const Limit& limit) {
  std::array<char, 64> text{};
  const std::size_t wanted = expected.size() + 1;
  std::size_t length = 0;
  while (length < wanted) {
    if (!Wait(socketNumber, POLLIN, limit)) return Heard::tooLate;
    const ssize_t count = recv(socketNumber, text.data() + length, wanted - length, MSG_DONTWAIT);
    if (count < 0 && (errno == EINTR || errno == EAGAIN)) continue;
    if (count <= 0) return Heard::other;
    length += static_cast<std::size_t>(count);
    const std::size_t compared = std::min(length, expected.size());
    if (std::string_view(text.data(), compared) != expected.substr(0, compared)) return Heard::other;
  }
  return text[expected.size()] == '\0' ? Heard::expected : Heard::other;
}

bool Send(int socketNumber, std::string_view bytes, const Limit& limit) {
  while (!bytes.empty()) {
    if (!Wait(socketNumber, POLLOUT, limit)) return false;
    const ssize_t count = send(socketNumber, bytes.data(), bytes.size(), MSG_DONTWAIT | MSG_NOSIGNAL);
    if (count < 0 && (errno == EINTR || errno == EAGAIN)) continue;
    if (count <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

// A connection to the socket; the number is negative when there is none, and `problem` is then why: EAGAIN
// where a process has a full queue and takes nobody in.
int Connect(const std::string& path, int& problem) {
  problem = ENAMETOOLONG;
  sockaddr_un address{};
  if (path.size() >= sizeof(address.sun_path)) return -1;
  address.sun_family = AF_UNIX;
  std::memcpy(address.sun_path, path.c_str(), path.size());
  const int number = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  problem = errno;
  if (number < 0) return -1;
  if (connect(number, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0) return number;
  problem = errno;
  close(number);
  return -1;
}

// The same, and again while the queue is full.
int ConnectAtLast(const std::string& path, const Limit& limit, int& problem) {
  int number = Connect(path, problem);
  while (number < 0 && problem == EAGAIN && !limit.Over()) {
    std::this_thread::sleep_for(kWaitStep);
    number = Connect(path, problem);
  }
  return number;
}

// The directory of a process's executable; empty when it may not be read.
std::string ExecutableDirectory(pid_t process) {
  std::array<char, PATH_MAX> target{};
  const std::string link = "/proc/" + std::to_string(process) + "/exe";
  const ssize_t length = readlink(link.c_str(), target.data(), target.size());
  if (length <= 0) return "";
  const std::string_view path(target.data(), static_cast<std::size_t>(length));
  const std::size_t mark = path.rfind('/');
  return mark == std::string_view::npos ? "" : std::string(path.substr(0, mark));
}

// Connects, sees that it is the user's own process, and hears the greeting.
SocketAnswer Greet(const std::string& path, uid_t user, const Limit& limit,
                   std::unique_ptr<Descriptor>& connection, pid_t& process) {
  int problem = 0;
  connection = std::make_unique<Descriptor>(ConnectAtLast(path, limit, problem));
  if (connection->Number() < 0) return problem == EAGAIN ? SocketAnswer::silent : SocketAnswer::nothing;
  ucred peer{};
  socklen_t size = sizeof(peer);
  if (getsockopt(connection->Number(), SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0 || peer.uid != user)
    return SocketAnswer::nothing;
  process = peer.pid;
  switch (Listen(connection->Number(), kGreeting, limit)) {
    case Heard::expected:
      return SocketAnswer::office;
    case Heard::tooLate:
      return SocketAnswer::silent;
    case Heard::other:
      break;
  }
  return SocketAnswer::nothing;
}

std::vector<std::string> AcceptorPaths(const std::string& name, uid_t user) {
  std::vector<std::string> paths = SystemSocketDirectories();
  for (std::string& path : paths)
    path += "/OSL_PIPE_" + std::to_string(user) + "_" + name;
  return paths;
}

bool IsSocketOf(const struct stat& status, uid_t user) {
  return S_ISSOCK(status.st_mode) && status.st_uid == user;
}

bool NobodyListens(const std::string& path) {
  int problem = 0;
  const Descriptor probe(Connect(path, problem));
  return probe.Number() < 0 && problem == ECONNREFUSED;
}

}  // namespace

std::vector<std::string> OfficeSocketDirectories() {
  const char* own = std::getenv("QUORB_OFFICE_SOCKETS");
  if (own != nullptr && *own != '\0') return {own};
  return SystemSocketDirectories();
}

std::vector<std::string> OfficeSocketPaths(const std::vector<std::string>& directories, uid_t user) {
  const std::string prefix = "OSL_PIPE_" + std::to_string(user) + "_SingleOfficeIPC_";
  std::vector<std::pair<time_t, std::string>> found;
  for (const std::string& directory : directories) {
    const std::unique_ptr<DIR, int (*)(DIR*)> listing(opendir(directory.c_str()), closedir);
    if (!listing) continue;
    while (const dirent* entry = readdir(listing.get())) {
      if (std::string_view(entry->d_name).substr(0, prefix.size()) != prefix) continue;
      const std::string path = directory + "/" + entry->d_name;
      struct stat status {};
      if (lstat(path.c_str(), &status) == 0 && S_ISSOCK(status.st_mode))
        found.emplace_back(status.st_mtime, path);
    }
  }
  std::sort(found.begin(), found.end(), std::greater<>());
  std::vector<std::string> paths;
  paths.reserve(found.size());
  for (const auto& [time, path] : found)
    paths.push_back(path);
  return paths;
}

SocketAnswer LookAtSocket(const std::string& path, uid_t user, milliseconds patience, RunningOffice& office,
                          const std::atomic<bool>* cut) {
  std::unique_ptr<Descriptor> connection;
  pid_t process = 0;
  const SocketAnswer answer = Greet(path, user, {steady_clock::now() + patience, cut}, connection, process);
  if (answer != SocketAnswer::office) return answer;
  const std::string directory = ExecutableDirectory(process);
  if (directory.empty()) return SocketAnswer::nothing;
  office = {path, process, directory};
  return SocketAnswer::office;
}

bool TellOffice(const RunningOffice& office, uid_t user, const std::string& word, milliseconds patience,
                const std::atomic<bool>* cut) {
  const Limit limit{steady_clock::now() + patience, cut};
  std::unique_ptr<Descriptor> connection;
  pid_t process = 0;
  if (Greet(office.socketPath, user, limit, connection, process) != SocketAnswer::office) return false;
  std::string words = "InternalIPC::Arguments0,";
  for (const char c : word) {
    if (c == ',' || c == '\\') words += '\\';
    words += c;
  }
  words += '\0';
  return Send(connection->Number(), words, limit) &&
         Listen(connection->Number(), kTaken, limit) == Heard::expected;
}

bool AcceptorStands(const std::string& name, uid_t user) {
  struct stat status {};
  for (const std::string& path : AcceptorPaths(name, user))
    if (lstat(path.c_str(), &status) == 0) return IsSocketOf(status, user);
  return false;
}

void RemoveStaleAcceptor(const std::string& name, uid_t user) {
  for (const std::string& path : AcceptorPaths(name, user)) {
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0 || !IsSocketOf(status, user) || !NobodyListens(path)) continue;
    // One that is just being made has no listener for a moment.
    std::this_thread::sleep_for(kWaitStep);
    if (NobodyListens(path)) unlink(path.c_str());
  }
}

}  // namespace quorb
