#pragma once

#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace quorb {

/// A program that runs beside the test and is ended with the scope.
class Background {
 public:
  /// `environment` holds NAME=VALUE entries that are added to this process's own.
  Background(const std::vector<std::string>& command, const std::vector<std::string>& environment,
             int inherited = -1) {
    process_ = fork();
    if (process_ != 0) return;
    prctl(PR_SET_PDEATHSIG, SIGKILL);  // it does not outlive a test that crashes
    for (const std::string& entry : environment)
      putenv(const_cast<char*>(entry.c_str()));
    if (inherited >= 0) dup2(inherited, 3);
    std::vector<char*> arguments;
    for (const std::string& word : command)
      arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    execvp(arguments[0], arguments.data());
    _exit(127);
  }
  Background(const Background&) = delete;
  Background& operator=(const Background&) = delete;
  ~Background() {
    if (process_ <= 0) return;
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
  }

  /// Waits for its end. The exit status; -1 when it was ended by a signal, -2 when it still runs after the
  /// time.
  int Wait(std::chrono::seconds atMost) {
    const auto limit = std::chrono::steady_clock::now() + atMost;
    int status = 0;
    while (waitpid(process_, &status, WNOHANG) == 0) {
      if (std::chrono::steady_clock::now() > limit) return -2;
      std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    process_ = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  bool Runs() const { return process_ > 0 && waitpid(process_, nullptr, WNOHANG) == 0; }

 private:
  pid_t process_ = -1;
};

/// An X server without a screen, for the tests of the real window.
class VirtualDisplay {
 public:
  VirtualDisplay(int width, int height) {
    int ends[2] = {-1, -1};
    if (pipe(ends) != 0) return;
    const std::string screen = std::to_string(width) + "x" + std::to_string(height) + "x24";
    // A server that resets itself behind its last client refuses whoever comes meanwhile.
    server_ = std::make_unique<Background>(std::vector<std::string>{"Xvfb", "-displayfd", "3", "-screen", "0",
                                                                    screen, "-nolisten", "tcp", "-noreset"},
                                           std::vector<std::string>{}, ends[1]);
    close(ends[1]);
    char digit = 0;
    while (read(ends[0], &digit, 1) == 1 && digit != '\n')
      number_ += digit;
    close(ends[0]);
  }

  /// False when no server could be started.
  bool Works() const { return !number_.empty(); }
  std::string Name() const { return ":" + number_; }

 private:
  std::unique_ptr<Background> server_;
  std::string number_;
};

}  // namespace quorb
