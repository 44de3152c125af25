#pragma once

#include <sys/types.h>

#include <atomic>
#include <chrono>
#include <string>
#include <vector>

namespace quorb {

/// A running office, known by the socket on which it takes the words of a second start.
struct RunningOffice {
  std::string socketPath;
  pid_t process = 0;
  std::string programDirectory;  ///< Where its libraries stand, without a mark at the end.
};

/// What asking a socket came to.
enum class SocketAnswer {
  office,   ///< An office of that user: `RunningOffice` is filled.
  nothing,  ///< A stale socket, another program's, or another user's.
  silent,   ///< Something of that user listens and says nothing in time: a frozen or a very busy office.
};

/// The directories where the offices of this system put their sockets: /tmp and /var/tmp. A test names
/// another one instead of them in the environment, in QUORB_OFFICE_SOCKETS, so that offices which it did not
/// start are left alone; only the search for offices goes by that.
std::vector<std::string> OfficeSocketDirectories();

/// The sockets in `directories` whose name says that they belong to an office of the user `user`, newest
/// first. Nothing is connected.
std::vector<std::string> OfficeSocketPaths(const std::vector<std::string>& directories, uid_t user);

/// Looks who listens on a socket, and goes again: the office sees nothing of it.
/// @param user the user whose offices are looked for; a process of anybody else is left alone.
/// @param patience how long its greeting may take.
/// @param cut becomes true on another thread when the waiting is to end at once; may be null.
SocketAnswer LookAtSocket(const std::string& path, uid_t user, std::chrono::milliseconds patience,
                          RunningOffice& office, const std::atomic<bool>* cut = nullptr);

/// Hands a running office one word as a second start with that word on its command line would, and waits
/// until it was taken. No window is opened or raised for "--accept=...".
/// @param cut as in LookAtSocket.
/// @return false when the office did not take it within `patience`.
bool TellOffice(const RunningOffice& office, uid_t user, const std::string& word,
                std::chrono::milliseconds patience, const std::atomic<bool>* cut = nullptr);

/// True when the acceptor of that name stands there and belongs to that user. Whoever else may put a socket
/// of that name there cannot make it look so.
bool AcceptorStands(const std::string& name, uid_t user);

/// Removes the acceptor of that name where it belongs to that user and nobody listens on it any more, as when
/// the process that made it was killed and its number came round again.
void RemoveStaleAcceptor(const std::string& name, uid_t user);

}  // namespace quorb
