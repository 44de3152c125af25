#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "OfficeSession.h"
#include "OfficeSockets.h"
#include "WatchedWorker.h"

namespace quorb {

/// What a link to Calc needs to know; the values at the start are those of a user's desktop.
struct CalcLinkOptions {
  std::vector<std::string> socketDirectories = OfficeSocketDirectories();
  std::string pluginPath;  ///< Empty: the plug-in beside the program.
  /// Without a sign of life for that long, the office is cut off.
  std::chrono::milliseconds silence{5000};
  /// So long the operations of a poll wait at most; then they are busy and the question goes on.
  std::chrono::milliseconds pollPatience{50};
  /// The same for attaching, where nothing is attached yet.
  std::chrono::milliseconds attachPatience{20};
};

/// A question to the office: what is asked and what came back.
struct Errand {
  Workbook workbook = kNoWorkbook;
  int row = 0, column = 0;
  bool flag = false;
  std::string text;
  CellRectangle rectangle;
  BookView view;
  CellValue value;
  CellBlock block;
  std::vector<std::string> texts;
};

/// Who asks, and so how long he waits.
enum class Asker {
  poll,  ///< A moment at most, and not at all while an earlier question is without an answer.
  load,  ///< Until there is an answer or the office is cut off; events are let through meanwhile.
};

/// The connection to the running office, held by a thread of its own under a watch.
class OfficeTalk {
 public:
  using Question = std::function<SheetFault(OfficeSession&, Errand&)>;

  explicit OfficeTalk(CalcLinkOptions options);
  /// Ends the connection; a question that runs is cut.
  ~OfficeTalk();
  OfficeTalk(const OfficeTalk&) = delete;
  OfficeTalk& operator=(const OfficeTalk&) = delete;

  /// Attaches, or sees that it still is attached. 429 when no office with a spreadsheet or without any
  /// document runs; 50290 when there is one which does not answer, or not in time for a poll: attaching then
  /// goes on, and a later poll finds it done.
  SheetFault Attach(Asker asker);

  /// Cuts the question that runs, if any; it then ends as busy.
  void Cut();

  /// True from the time that a connection was cut to the next Attach.
  bool IsCut() const;

  /// Asks. `question` runs on another thread and may outlive the caller: it captures values only, and what it
  /// writes goes to the errand that it is given. `errand` takes the answer when there was one in time. 50290
  /// when there was none, -2147417848 when the office is gone.
  SheetFault Ask(Asker asker, Errand& errand, const Question& question);

 private:
  struct Connection;

  SheetFault Perform(Asker asker, std::chrono::milliseconds patience, Errand& errand,
                     const std::function<SheetFault(Errand&)>& work);

  const CalcLinkOptions options_;
  std::shared_ptr<Connection> connection_;
  std::unique_ptr<WatchedWorker> worker_;
  bool late_ = false;
  bool attached_ = false;
};

}  // namespace quorb
