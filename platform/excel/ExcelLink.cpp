#include "ExcelLink.h"

#include <utility>

#include "BlockRows.h"
#include "Dialogs.h"
#include "ExcelSession.h"
#include "WideText.h"

namespace quorb {

namespace {

// An application that computes uses at least that part of its time for it.
constexpr int kLeastShareOfTime = 10;
// Longer formulas are not evaluated by the application.
constexpr std::size_t kLongestEvaluated = 255;

struct Nothing {};

// Gives nothing more to the caller once the application was released in an event.
class SinkUntilReleased : public BlockTextSink {
 public:
  SinkUntilReleased(BlockTextSink& sink, const int& releases)
      : sink_(sink), releases_(releases), releasesBefore_(releases) {}
  bool Take(std::string_view piece) override { return releases_ == releasesBefore_ && sink_.Take(piece); }

 private:
  BlockTextSink& sink_;
  const int& releases_;
  const int releasesBefore_;
};

}  // namespace

// ---- the talk ---------------------------------------------------------------------------------------------

ExcelLink::ExcelLink(std::chrono::milliseconds limit, ProcessorTime processorTime)
    : limit_(limit), processorTime_(std::move(processorTime)), session_(std::make_shared<ExcelSession>()) {}

bool ExcelLink::IsComputing() {
  const std::int64_t before = timeUsed_;
  timeUsed_ = processorTime_(session_->Process());
  return before != 0 && timeUsed_ - before > std::chrono::microseconds(limit_).count() / kLeastShareOfTime;
}

// The answer belongs to the job, which may go on when the caller has given it up. A call from within an event
// that a load's step lets through waits for that step, and lets no events through itself.
template <typename Result, typename Question>
SheetFault ExcelLink::Ask(Asker asker, Result& result, const Question& question) {
  struct Answer {
    Result value{};
    SheetFault fault;
  };
  const auto answer = std::make_shared<Answer>();
  const auto session = session_;
  const bool isInEvent = stepsUnderWay_ > 0;
  if (isInEvent && asker != Asker::poll && !worker_.WaitUntilIdle(limit_)) return FaultOf(kFaultBusy);
  JobWait wait;
  wait.limit = limit_;
  // A release may be asked for before and while the question is answered.
  const std::function<void()> job = [=] {
    const auto ask = [&] { return question(*session, answer->value); };
    session->ReleaseIfAsked();
    if (asker == Asker::load) session->LookUpProcess();
    answer->fault = asker == Asker::attach ? ask()
                    : asker == Asker::poll ? session->Ask(ask)
                                           : session->AskPatiently(ask);
    session->ReleaseIfAsked();
  };
  if (asker == Asker::load) {
    if (!isInEvent) wait.meanwhile = [] { CurrentDialogs().PumpEvents(); };
    wait.isAlive = [this] { return IsComputing(); };
    timeUsed_ = processorTime_(session_->Process());
  }
  const int releases = releases_;
  ++stepsUnderWay_;
  const bool ended = worker_.Run(job, wait);
  --stepsUnderWay_;
  if (!ended) return FaultOf(kFaultBusy);
  if (releases != releases_) return FaultOf(kFaultNoObject);
  if (answer->fault.Good()) result = std::move(answer->value);
  return answer->fault;
}

// A step of a load that gives nothing.
template <typename Question>
SheetFault ExcelLink::Tell(const Question& question) {
  Nothing nothing;
  return Ask(Asker::load, nothing, [=](ExcelSession& session, Nothing&) { return question(session); });
}

// The objects are let go on the thread that got them.
ExcelLink::~ExcelLink() {
  Nothing nothing;
  const SheetFault fault = Ask(Asker::attach, nothing, [](ExcelSession& session, Nothing&) {
    session.Abandon();
    return SheetFault();
  });
  if (!fault.Good()) session_->ReleaseSoon();
}

// ---- the application --------------------------------------------------------------------------------------

SheetFault ExcelLink::GetRunningObject() {
  Nothing nothing;
  return Ask(Asker::attach, nothing, [](ExcelSession& session, Nothing&) { return session.Attach(); });
}

void ExcelLink::ReleaseObject() {
  Nothing nothing;
  const SheetFault fault = Ask(Asker::attach, nothing, [](ExcelSession& session, Nothing&) {
    session.Release();
    return SheetFault();
  });
  if (!fault.Good()) session_->ReleaseSoon();
  ++releases_;
}

SheetFault ExcelLink::Version(std::string& version) {
  return Ask(Asker::load, version,
             [](ExcelSession& session, std::string& result) { return session.Version(result); });
}

SheetFault ExcelLink::Name(std::string& name) {
  return Ask(Asker::poll, name,
             [](ExcelSession& session, std::string& result) { return session.Name(result); });
}

SheetFault ExcelLink::Visible(bool& visible) {
  return Ask(Asker::poll, visible,
             [](ExcelSession& session, bool& result) { return session.Visible(result); });
}

SheetFault ExcelLink::SetVisible(bool visible) {
  return Tell([=](ExcelSession& session) { return session.SetVisible(visible); });
}

SheetFault ExcelLink::Quit() {
  return Tell([](ExcelSession& session) { return session.Quit(); });
}

// ---- workbooks and windows --------------------------------------------------------------------------------

SheetFault ExcelLink::ActiveWorkbook(Workbook& workbook) {
  return Ask(Asker::poll, workbook,
             [](ExcelSession& session, Workbook& result) { return session.ActiveWorkbook(result); });
}

SheetFault ExcelLink::ActiveWorkbookName(std::string& name) {
  return Ask(Asker::poll, name,
             [](ExcelSession& session, std::string& result) { return session.ActiveWorkbookName(result); });
}

SheetFault ExcelLink::WorkbookWindowsCount(Workbook workbook, int& count) {
  return Ask(Asker::poll, count, [=](ExcelSession& session, int& result) {
    return session.WorkbookWindowsCount(workbook, result);
  });
}

SheetFault ExcelLink::WorkbookWindowCaption(Workbook workbook, int index, std::string& caption) {
  return Ask(Asker::poll, caption, [=](ExcelSession& session, std::string& result) {
    return session.WorkbookWindowCaption(workbook, index, result);
  });
}

SheetFault ExcelLink::WindowsCount(int& count) {
  std::vector<std::string> captions;
  SheetFault fault = WindowCaptions(captions);
  if (fault.Good()) count = static_cast<int>(captions.size());
  return fault;
}

SheetFault ExcelLink::WindowCaption(int index, std::string& caption) {
  std::vector<std::string> captions;
  SheetFault fault = WindowCaptions(captions);
  if (!fault.Good()) return fault;
  if (index < 1 || static_cast<std::size_t>(index) > captions.size()) return FaultOf(kFaultOutOfBounds);
  caption = captions[static_cast<std::size_t>(index) - 1];
  return {};
}

SheetFault ExcelLink::WindowCaptions(std::vector<std::string>& captions) {
  return Ask(Asker::load, captions, [](ExcelSession& session, std::vector<std::string>& result) {
    return session.WindowCaptions(result);
  });
}

SheetFault ExcelLink::WorkbooksActivate(const std::string& caption) {
  return Tell([=](ExcelSession& session) { return session.WorkbooksActivate(caption); });
}

SheetFault ExcelLink::WorkbooksAdd() {
  return Tell([](ExcelSession& session) { return session.WorkbooksAdd(); });
}

SheetFault ExcelLink::ActiveWindowClose(bool /*SaveChanges*/, bool /*RouteWorkbook*/) {
  return Tell([](ExcelSession& session) { return session.CloseScratchWindow(); });
}

// ---- the active sheet of a workbook -----------------------------------------------------------------------

SheetFault ExcelLink::ActiveSheetName(Workbook workbook, std::string& name) {
  return Ask(Asker::poll, name, [=](ExcelSession& session, std::string& result) {
    return session.ActiveSheetName(workbook, result);
  });
}

SheetFault ExcelLink::ActiveCellFormula(Workbook workbook, std::string& formula) {
  return Ask(Asker::poll, formula, [=](ExcelSession& session, std::string& result) {
    return session.ActiveCellFormula(workbook, result);
  });
}

SheetFault ExcelLink::SetActiveCellFormula(Workbook workbook, const std::string& formula) {
  return Tell([=](ExcelSession& session) { return session.SetActiveCellFormula(workbook, formula); });
}

SheetFault ExcelLink::ActiveCellValue(Workbook workbook, CellValue& value) {
  return Ask(Asker::load, value, [=](ExcelSession& session, CellValue& result) {
    return session.ActiveCellValue(workbook, result);
  });
}

SheetFault ExcelLink::ActiveCellRow(Workbook workbook, int& row) {
  return Ask(Asker::load, row, [=](ExcelSession& session, int& result) {
    return session.ActiveCellInteger(workbook, L"Row", result);
  });
}

SheetFault ExcelLink::ActiveCellColumn(Workbook workbook, int& column) {
  return Ask(Asker::load, column, [=](ExcelSession& session, int& result) {
    return session.ActiveCellInteger(workbook, L"Column", result);
  });
}

SheetFault ExcelLink::FindActivate(Workbook workbook, const FindArguments& arguments) {
  return Tell([=](ExcelSession& session) { return session.FindActivate(workbook, arguments); });
}

SheetFault ExcelLink::ApplicationFindActivate(const FindArguments& arguments) {
  return Tell([=](ExcelSession& session) { return session.ApplicationFindActivate(arguments); });
}

SheetFault ExcelLink::CellsValue(Workbook workbook, int row, int column, CellValue& value) {
  return Ask(Asker::load, value, [=](ExcelSession& session, CellValue& result) {
    return session.CellsValue(workbook, row, column, result);
  });
}

SheetFault ExcelLink::CellsSelect(Workbook workbook, int row, int column) {
  return Tell([=](ExcelSession& session) { return session.CellsSelect(workbook, row, column); });
}

SheetFault ExcelLink::EvaluateAside(Workbook workbook, const std::string& formula, CellValue& value,
                                    bool& offered) {
  const bool isShort = WideText(formula).size() <= kLongestEvaluated;
  if (!isShort) {
    SheetFault held = Tell([](ExcelSession& session) { return session.Held(); });
    offered = !held.Good();
    return held;
  }
  offered = true;
  return Ask(Asker::load, value, [=](ExcelSession& session, CellValue& result) {
    return session.Evaluate(workbook, formula, result);
  });
}

// ---- from the source to the scratch workbook --------------------------------------------------------------

SheetFault ExcelLink::RangeCopy(const std::string& range) {
  return Tell([=](ExcelSession& session) { return session.RangeCopy(range); });
}

SheetFault ExcelLink::RangePasteSpecial(const std::string& range, const PasteArguments& arguments) {
  return Tell([=](ExcelSession& session) { return session.RangePasteSpecial(range, arguments); });
}

SheetFault ExcelLink::EndCutCopyMode() {
  return Tell([](ExcelSession& session) { return session.EndCutCopyMode(); });
}

SheetFault ExcelLink::RangeSelect(const std::string& range) {
  return Tell([=](ExcelSession& session) { return session.RangeSelect(range); });
}

SheetFault ExcelLink::SetActiveCell(const std::string& text) {
  return Tell([=](ExcelSession& session) { return session.SetActiveCell(text); });
}

SheetFault ExcelLink::ColumnsSelect(const std::string& columns) {
  return Tell([=](ExcelSession& session) { return session.ColumnsSelect(columns); });
}

SheetFault ExcelLink::SelectionColumnWidth(double width) {
  return Tell([=](ExcelSession& session) { return session.SelectionColumnWidth(width); });
}

SheetFault ExcelLink::SelectionNumberFormat(const std::string& format) {
  return Tell([=](ExcelSession& session) { return session.SelectionNumberFormat(format); });
}

SheetFault ExcelLink::BlockText(const std::string& range, BlockTextSink& sink) {
  const int releases = releases_;
  TextOfBlock text;
  SheetFault fault = Ask(Asker::load, text, [=](ExcelSession& session, TextOfBlock& result) {
    return session.BlockText(range, result);
  });
  if (!fault.Good()) return fault;
  SinkUntilReleased untilReleased(sink, releases_);
  fault = GiveBlockRows(text.rows, text.beginsWritten, untilReleased);
  return releases == releases_ ? fault : FaultOf(kFaultNoObject);
}

}  // namespace quorb
