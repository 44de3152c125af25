#pragma once

#include <string>

#include "ComObject.h"

namespace quorb {

/// The test server, from its start until 429 is seen again. It runs in a process of its own and is reached
/// from the test's thread beside the link's.
class ServerRun {
 public:
  ServerRun();
  ~ServerRun() { End(); }
  ServerRun(const ServerRun&) = delete;
  ServerRun& operator=(const ServerRun&) = delete;

  const ComObject& App() const { return app_; }
  unsigned long Process() const { return process_; }

  /// Adds a workbook of the user's, which becomes the active one.
  void AddBook(const std::string& name, const std::string& caption = "", int windows = 1);
  /// Writes to the active workbook.
  void SetNumber(int row, int column, double number);
  void SetText(int row, int column, const std::string& text);
  void SetFormula(int row, int column, const std::string& formula);
  ComObject Cell(int row, int column);
  /// The user selects that cell.
  void Select(int row, int column);
  void Activate(const std::string& name);
  /// The user goes to the sheet of that name.
  void ShowSheet(const std::string& name);

  void Mode(const std::string& kind, const std::string& member = "", int amount = 1000000);
  void RejectFor(int milliseconds);
  /// All that is the user's, as text.
  std::string State();
  /// The calls that change or copy something, since the last time, one a line.
  std::string Log();

  /// Ends the process at once.
  void Kill();
  /// Ends the server and waits until it is no longer registered.
  void End();

 private:
  void* handle_ = nullptr;
  unsigned long process_ = 0;
  ComObject app_;
};

/// The server that most tests share, emptied; started when it does not run.
ServerRun& FreshServer();
/// Ends it.
void EndSharedServer();

}  // namespace quorb
