#pragma once

#include <memory>
#include <string>

#include "ExcelLink.h"
#include "ServerRun.h"

namespace quorb {

/// A link that is attached to the emptied server, in which the user has a workbook open: "Book1.xlsx" with
/// numbers in A2:C4 (21, 22, 23; 31 ...), a formula in T1, and the selection on B3.
struct AttachedLink {
  explicit AttachedLink(int limitInMilliseconds = 5000)
      : server(FreshServer()),
        link(std::make_unique<ExcelLink>(std::chrono::milliseconds(limitInMilliseconds))) {
    server.AddBook("Book1.xlsx");
    for (int row = 2; row <= 4; ++row)
      for (int column = 1; column <= 3; ++column)
        server.SetNumber(row, column, row * 10 + column);
    server.SetFormula(1, 20, kFormula);
    server.Select(3, 2);
    stateBefore = server.State();
    attached = link->GetRunningObject().number;
    static_cast<void>(link->ActiveWorkbook(book));
    server.Log();
  }

  static constexpr const char* kFormula = "=0.01+LEN(\"Orbit kmday\")+MAX(A2:C4)";

  ServerRun& server;
  std::unique_ptr<ExcelLink> link;
  std::string stateBefore;
  int attached = -1;
  Workbook book = kNoWorkbook;
};

/// The arguments of the loader's search.
inline FindArguments SearchForKeyword() {
  FindArguments arguments;
  arguments.What = "MAX";
  return arguments;
}

/// Keeps a block's text.
class KeptText : public BlockTextSink {
 public:
  bool Take(std::string_view piece) override {
    text += piece;
    return true;
  }
  std::string text;
};

}  // namespace quorb
