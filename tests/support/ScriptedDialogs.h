#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "Dialogs.h"

namespace quorb {

/// Leaves a pause that the program itself never leaves; thrown by ScriptedDialogs at its pump limit.
struct PumpLimitReached {};

/// Dialogs of a test: answers come from queues, every box and line asked for is kept. It is the process's
/// dialogs for as long as it lives.
class ScriptedDialogs : public Dialogs {
 public:
  struct Box {
    std::string prompt;
    std::string title;
    int style = 0;
  };
  struct Line {
    std::string prompt;
    std::string title;
    std::string defaultText;
  };

  ScriptedDialogs() { SetDialogs(this); }
  ~ScriptedDialogs() override { SetDialogs(nullptr); }
  ScriptedDialogs(const ScriptedDialogs&) = delete;
  ScriptedDialogs& operator=(const ScriptedDialogs&) = delete;

  /// The next boxes answer these, in order. With none left, Abort/Retry/Ignore answers ignore and any other
  /// box `otherwise`.
  std::deque<BoxAnswer> answers;
  BoxAnswer otherwise = BoxAnswer::ok;

  /// The next input boxes give these lines, in order; with none left, the empty line.
  std::deque<std::string> lines;

  /// What was shown and asked, in order.
  std::vector<Box> boxes;
  std::vector<Line> asked;

  /// Calls of PumpEvents so far; `onPump` runs in each, and at the call number `pumpLimit` (0: none)
  /// PumpLimitReached is thrown.
  int pumps = 0;
  int pumpLimit = 0;
  std::function<void()> onPump;

  /// How often the program asked for its end.
  int ended = 0;

  BoxAnswer MessageBox(const std::string& prompt, const std::string& title, int style) override {
    boxes.push_back({prompt, title, style});
    if (!answers.empty()) return TakeFirst(answers);
    constexpr int kButtonBits = 7;
    return (style & kButtonBits) == kBoxAbortRetryIgnore ? BoxAnswer::ignore : otherwise;
  }

  std::string InputBox(const std::string& prompt, const std::string& title,
                       const std::string& defaultText) override {
    asked.push_back({prompt, title, defaultText});
    return lines.empty() ? std::string() : TakeFirst(lines);
  }

  void PumpEvents() override {
    ++pumps;
    const auto act = onPump;  // which may set another one
    if (act) act();
    if (pumps == pumpLimit) throw PumpLimitReached();
  }

  void EndProgram() override { ++ended; }

 private:
  template <typename T>
  static T TakeFirst(std::deque<T>& queue) {
    T first = queue.front();
    queue.pop_front();
    return first;
  }
};

}  // namespace quorb
