#include "OfficeSockets.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cstring>
#include <filesystem>
#include <thread>

namespace quorb {
namespace {

using std::chrono::milliseconds;

// Sockets of the test's own in a directory of its own.
class OfficeSockets : public testing::Test {
 protected:
  void SetUp() override {
    std::array<char, 32> name{"/tmp/quorb-sockets-XXXXXX"};
    directory_ = mkdtemp(name.data());
  }
  void TearDown() override {
    for (const int socketNumber : open_)
      close(socketNumber);
    std::filesystem::remove_all(directory_);
  }

  std::string Path(uid_t user, const std::string& mark) const {
    return directory_ + "/OSL_PIPE_" + std::to_string(user) + "_SingleOfficeIPC_" + mark;
  }

  int Listen(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.c_str(), path.size());
    const int number = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    EXPECT_EQ(bind(number, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
    EXPECT_EQ(listen(number, 5), 0);
    open_.push_back(number);
    return number;
  }

  // Says `text` to the first caller.
  static void Say(int listening, const std::string& text) {
    const int caller = accept(listening, nullptr, nullptr);
    (void)send(caller, text.data(), text.size(), MSG_NOSIGNAL);
    close(caller);
  }

  SocketAnswer Look(const std::string& path, uid_t user = getuid()) {
    return LookAtSocket(path, user, milliseconds(200), office_);
  }

  std::string directory_;
  std::vector<int> open_;
  RunningOffice office_;
};

TEST_F(OfficeSockets, FindsTheSocketsOfTheUserOnly) {
  Listen(Path(getuid(), "a"));
  Listen(Path(getuid() + 1, "b"));
  Listen(directory_ + "/OSL_PIPE_other");
  EXPECT_EQ(OfficeSocketPaths({directory_, "/nonexistent"}, getuid()),
            std::vector<std::string>{Path(getuid(), "a")});
}

TEST_F(OfficeSockets, AStaleSocketIsNothing) {
  close(Listen(Path(getuid(), "a")));
  open_.clear();
  EXPECT_EQ(Look(Path(getuid(), "a")), SocketAnswer::nothing);
  EXPECT_EQ(Look(directory_ + "/gone"), SocketAnswer::nothing);
}

TEST_F(OfficeSockets, AnotherProgramsSocketIsNothing) {
  const int listening = Listen(Path(getuid(), "a"));
  std::thread other(
      [&] { Say(listening, "HTTP/1.1 400 Bad Request and so on, longer than a greeting\r\n"); });
  EXPECT_EQ(Look(Path(getuid(), "a")), SocketAnswer::nothing);
  other.join();
}

TEST_F(OfficeSockets, ASocketThatClosesAtOnceIsNothing) {
  const int listening = Listen(Path(getuid(), "a"));
  std::thread other([&] { Say(listening, "Internal"); });
  EXPECT_EQ(Look(Path(getuid(), "a")), SocketAnswer::nothing);
  other.join();
}

TEST_F(OfficeSockets, AListenerThatSaysNothingIsSilent) {
  Listen(Path(getuid(), "a"));
  EXPECT_EQ(Look(Path(getuid(), "a")), SocketAnswer::silent);
}

TEST_F(OfficeSockets, AnotherUsersProcessIsLeftAlone) {
  const std::string path = Path(getuid() + 1, "a");
  const int listening = Listen(path);
  std::thread other([&] { Say(listening, std::string("InternalIPC::SendArguments") + '\0'); });
  EXPECT_EQ(Look(path, getuid() + 1), SocketAnswer::nothing);
  other.join();
}

// A process of another user that listens under this user's name, and greets as an office does.
TEST_F(OfficeSockets, AnotherUsersListenerUnderThisUsersNameIsLeftAlone) {
  if (getuid() != 0) GTEST_SKIP() << "only root can be somebody else";
  const std::string path = Path(getuid(), "a");
  int ready[2] = {-1, -1};
  ASSERT_EQ(pipe(ready), 0);
  const pid_t other = fork();
  if (other == 0) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.c_str(), path.size());
    const int listening = socket(AF_UNIX, SOCK_STREAM, 0);
    const bool listens = bind(listening, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0 &&
                         setuid(65534) == 0 && listen(listening, 5) == 0;
    if (!listens || write(ready[1], "x", 1) != 1) _exit(1);
    Say(listening, std::string("InternalIPC::SendArguments") + '\0');
    _exit(0);
  }
  char byte = 0;
  EXPECT_EQ(read(ready[0], &byte, 1), 1);
  EXPECT_EQ(Look(path), SocketAnswer::nothing);
  EXPECT_FALSE(TellOffice({path, other, ""}, getuid(), "--accept=pipe,name=a", milliseconds(200)));
  kill(other, SIGKILL);
  waitpid(other, nullptr, 0);
  close(ready[0]);
  close(ready[1]);
}

TEST_F(OfficeSockets, AWaitIsCut) {
  const std::string path = Path(getuid(), "a");
  Listen(path);
  std::atomic<bool> cut{false};
  std::thread cuts([&] {
    std::this_thread::sleep_for(milliseconds(100));
    cut = true;
  });
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_EQ(LookAtSocket(path, getuid(), milliseconds(20000), office_, &cut), SocketAnswer::silent);
  cuts.join();
  EXPECT_FALSE(TellOffice({path, getpid(), ""}, getuid(), "--accept", milliseconds(20000), &cut));
  EXPECT_LT(std::chrono::steady_clock::now() - begin, milliseconds(2000));
}

TEST_F(OfficeSockets, AFullQueueThatIsServedLaterIsNoSilence) {
  const std::string path = Path(getuid(), "a");
  const int listening = Listen(path);
  const timeval longest{5, 0};
  ASSERT_EQ(setsockopt(listening, SOL_SOCKET, SO_RCVTIMEO, &longest, sizeof(longest)), 0);
  const auto call = [&] {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.c_str(), path.size());
    const int number = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    open_.push_back(number);
    return connect(number, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
  };
  while (call())
    ASSERT_LT(open_.size(), 100U);
  EXPECT_EQ(Look(path), SocketAnswer::silent);
  std::thread serves([&] {
    std::this_thread::sleep_for(milliseconds(100));
    for (std::size_t i = 0; i + 1 < open_.size(); ++i)
      Say(listening, std::string("InternalIPC::SendArguments") + '\0');
  });
  EXPECT_EQ(LookAtSocket(path, getuid(), milliseconds(10000), office_), SocketAnswer::office);
  serves.join();
}

TEST_F(OfficeSockets, AStaleAcceptorIsRemovedAndOneThatIsServedStays) {
  const std::string name = "quorb_test_" + std::to_string(getpid());
  const std::string path = "/tmp/OSL_PIPE_" + std::to_string(getuid()) + "_" + name;
  const int listening = Listen(path);
  RemoveStaleAcceptor(name, getuid());
  EXPECT_TRUE(AcceptorStands(name, getuid()));
  open_.clear();
  close(listening);
  EXPECT_TRUE(AcceptorStands(name, getuid()));
  RemoveStaleAcceptor(name, getuid());
  EXPECT_FALSE(AcceptorStands(name, getuid()));
}

TEST_F(OfficeSockets, AGreetingInPiecesIsAnOffice) {
  const int listening = Listen(Path(getuid(), "a"));
  std::thread other([&] {
    const int caller = accept(listening, nullptr, nullptr);
    EXPECT_EQ(write(caller, "InternalIPC::", 13), 13);
    std::this_thread::sleep_for(milliseconds(30));
    EXPECT_EQ(write(caller, "SendArguments", 14), 14);
    close(caller);
  });
  EXPECT_EQ(Look(Path(getuid(), "a")), SocketAnswer::office);
  EXPECT_EQ(office_.process, getpid());
  other.join();
}

TEST_F(OfficeSockets, AWordIsEscapedOnItsWay) {
  const std::string path = Path(getuid(), "a");
  const int listening = Listen(path);
  std::string heard;
  std::thread other([&] {
    const int caller = accept(listening, nullptr, nullptr);
    EXPECT_EQ(write(caller, "InternalIPC::SendArguments", 27), 27);
    std::array<char, 200> text{};
    const ssize_t length = read(caller, text.data(), text.size());
    heard.assign(text.data(), static_cast<std::size_t>(length));
    EXPECT_EQ(write(caller, "InternalIPC::ProcessingDone", 28), 28);
    close(caller);
  });
  EXPECT_TRUE(TellOffice({path, getpid(), ""}, getuid(), "--accept=pipe,name=a\\b", milliseconds(1000)));
  other.join();
  EXPECT_EQ(heard, std::string("InternalIPC::Arguments0,--accept=pipe\\,name=a\\\\b") + '\0');
}

}  // namespace
}  // namespace quorb
