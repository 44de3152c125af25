#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "FileAccess.h"
#include "LoaderWindow.h"
#include "SheetLink.h"

namespace quorb {

/// True for the failures of an application that will answer again: 50290 and -2147418111.
bool IsBusyFault(int number);

/// True for the failures of an application that went away: -2147417848 and -2147023170.
bool IsLostFault(int number);

/// A cell of the user's that holds another formula for a moment.
struct BorrowedCell {
  std::string sheetName;
  int row = 0, column = 0;
  std::string formula;   ///< The user's.
  std::string lent;      ///< What was written instead of it,
  std::string lentRead;  ///< and as the sheet gave it back.
};

/// What one load knows of the spreadsheet that it talks with. For as long as it lives PutBackSpreadsheet()
/// looks after it.
struct SheetSession {
  SheetSession(SheetLink& usedLink, LoaderWindow& usedWindow);
  ~SheetSession();
  SheetSession(const SheetSession&) = delete;
  SheetSession& operator=(const SheetSession&) = delete;

  SheetLink& link;
  LoaderWindow& window;
  SheetSession* const outer;  ///< The session within which this one began, as while that one waits.

  std::string outputName;           ///< The data file that the table goes to: that of the last load.
  Workbook workbook = kNoWorkbook;  ///< The source workbook.
  std::string cellFormula;          ///< The specification formula.
  std::string titleTail;            ///< What the sheet adds to the title of the formula.
  std::string SourceBook;           ///< Caption of the source workbook's window.
  std::string SourceSheet;          ///< Name of the sheet on show.
  std::string TempBook;             ///< Caption of the scratch workbook.
  std::string ExcelVersion;
  int cellRow = 0, cellColumn = 0;  ///< The user's selected cell.
  bool asksUser = true;             ///< A specification that is missing is asked for.
  bool searched = false;            ///< The specification stands elsewhere than under the selection,
  bool selectionMoved = false;      ///< and the search has put another cell in its place.
  bool fileWritten = false;         ///< The data file is the one of this session,
  std::string whyNotWritten;        ///< or else why not, as the log tells.
  int ErrorNumber = 0;              ///< The last failure; each stage begins with 0.
  bool busySeen = false;            ///< The spreadsheet was busy at some step of this stage.
  bool serverGone = false;          ///< The application went away since it was attached.
  int NoSheet = 0;                  ///< 1 when no workbook can be reached.
  int AddRetries = 0;               ///< Scratch workbooks that turned out to be the source.
  bool ended = false;               ///< All was put back because the program ends: nothing more is done.
  std::optional<BorrowedCell> borrowed;
  std::unique_ptr<OutputFile> output;  ///< The data file while it is written.

  /// Forgets the failures of the stage before.
  void StartStage();

  /// Gives up the data file of this session and logs why.
  void GiveUpFile(const std::string& why);

  /// Looks at how a step ended: a failure is noted in `ErrorNumber`, 1004 in `NoSheet` as well, and one of
  /// the clipboard that has no number of its own here is shown. The load goes on in every case.
  /// @return true when the step went well.
  bool Done(const SheetFault& fault);

  /// Does a step that puts something of the user's back: again and again while the spreadsheet is busy, for
  /// two seconds with events let through, and three times behind another failure. Only the last try counts
  /// for what Done notes.
  bool DoneAtLast(const std::function<SheetFault()>& step);

  /// False once a step of this stage found the application busy or gone: what was read may then be wrong.
  bool IsSound() const { return !busySeen && !serverGone && !ended; }
};

/// How often a step that puts something back is tried behind that failure, and the time between two tries.
int TriesBehind(int number);
inline constexpr double kPauseBetweenTries = 0.1;

/// The session that began last, or a null pointer.
SheetSession* CurrentSheetSession();

/// One use of the application. However it ends, the application is released, and a scratch workbook with it.
class SheetUse {
 public:
  explicit SheetUse(SheetLink& link);
  ~SheetUse();
  SheetUse(const SheetUse&) = delete;
  SheetUse& operator=(const SheetUse&) = delete;

 private:
  SheetLink& link_;
};

/// True while one is under way, but for the time that it waits for the user: no other load may begin.
bool SpreadsheetInUse();
void SetSpreadsheetInUse(bool inUse);

/// A time in which a session waits for the user, who may begin another load.
class UserWait {
 public:
  explicit UserWait(SheetSession& session);
  ~UserWait();
  UserWait(const UserWait&) = delete;
  UserWait& operator=(const UserWait&) = delete;

  /// Lets events through for 0.1 s.
  /// @return false when the waiting is over: "Run Demo" was pressed, or IsOutdated().
  bool Step();
  /// True when another load ran or the program ends: the session is then worth nothing.
  bool IsOutdated() const;

 private:
  SheetSession& session_;
  bool wasInUse_;
  int thisLoad_;
};

/// How many sessions wait for the user, each but the first one within the wait of another.
int SessionsThatWait();

}  // namespace quorb
