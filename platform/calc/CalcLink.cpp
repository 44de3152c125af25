#include "CalcLink.h"

#include <algorithm>
#include <utility>

#include "CalcScratch.h"
#include "SheetSession.h"

namespace quorb {
namespace {

// A workbook that stands for the scratch workbook where one is asked for.
constexpr Workbook kScratchWorkbook = -1;
constexpr int kDisconnected = -2147417848;
constexpr int kCallFailed = -2147023170;
constexpr char kScratchName[] = "QuorbExcelPro table";

}  // namespace

CalcLink::CalcLink(CalcLinkOptions options) : talk_(std::move(options)) {}

CalcLink::~CalcLink() = default;

// ---- the application

SheetFault CalcLink::Held() const {
  return held_ ? lost_ : FaultOf(kFaultNoObject);
}

// A load and a poll share some of the operations.
Asker CalcLink::CurrentAsker() {
  return SpreadsheetInUse() ? Asker::load : Asker::poll;
}

// Once the office is lost, everything fails as the question did that met it.
SheetFault CalcLink::Ask(Asker asker, Errand& errand, const OfficeTalk::Question& question) {
  SheetFault fault = Held();
  if (!fault.Good()) return fault;
  ++asking_;
  fault = talk_.Ask(asker, errand, question);
  --asking_;
  // Events were let through: the application may have been released.
  if (!held_) return FaultOf(kFaultNoObject);
  // A view without cells is busy too, and is not cut off.
  const bool cutOff = fault.number == kFaultBusy && talk_.IsCut();
  if (cutOff || fault.number == kDisconnected || fault.number == kCallFailed) lost_ = fault;
  return fault;
}

SheetFault CalcLink::HeldBook(Workbook workbook) const {
  SheetFault held = Held();
  return held.Good() && books_.find(workbook) == books_.end() ? FaultOf(kFaultNoObject) : held;
}

SheetFault CalcLink::HeldScratch() const {
  SheetFault held = Held();
  if (!held.Good()) return held;
  return scratch_ && scratch_->active ? held : Refused("The workbook is not written to.");
}

SheetFault CalcLink::GetRunningObject() {
  ReleaseObject();
  const int releases = releases_;
  ++asking_;
  SheetFault fault = talk_.Attach(CurrentAsker());
  --asking_;
  if (!fault.Good()) return fault;
  if (releases != releases_) return FaultOf(kFaultNoObject);
  held_ = true;
  Errand errand;
  fault = Ask(CurrentAsker(), errand, [](OfficeSession& session, Errand&) {
    session.ForgetWorkbooks();
    return SheetFault();
  });
  if (!fault.Good()) ReleaseObject();
  return fault;
}

void CalcLink::ReleaseObject() {
  // From within an event: nobody waits for the answer any more.
  if (asking_ > 0) talk_.Cut();
  ++releases_;
  held_ = false;
  lost_ = SheetFault();
  books_.clear();
  active_ = kNoWorkbook;
  lookedAtActive_ = false;
  scratch_.reset();
}

SheetFault CalcLink::Version(std::string& version) {
  if (SheetFault held = Held(); !held.Good()) return held;
  int rows = ScratchTable::kMostRows;
  if (LookAtActive().Good() && active_ != kNoWorkbook) {
    Errand errand;
    SheetFault fault = CellErrand(Asker::load, active_, errand, [](OfficeSession& session, Errand& asked) {
      return session.SheetRows(asked.workbook, asked.row);
    });
    if (!fault.Good()) return fault;
    rows = errand.row;
  }
  version = rows > 65536 ? "12.0" : "11.0";
  return {};
}

SheetFault CalcLink::Name(std::string& name) {
  if (SheetFault held = Held(); !held.Good()) return held;
  Errand errand;
  SheetFault fault = Ask(CurrentAsker(), errand,
                         [](OfficeSession& session, Errand& asked) { return session.Name(asked.text); });
  if (fault.Good()) name = errand.text;
  return fault;
}

SheetFault CalcLink::Visible(bool& visible) {
  if (SheetFault held = Held(); !held.Good()) return held;
  Errand errand;
  SheetFault fault = Ask(CurrentAsker(), errand,
                         [](OfficeSession& session, Errand& asked) { return session.Visible(asked.flag); });
  if (fault.Good()) visible = errand.flag;
  return fault;
}

SheetFault CalcLink::SetVisible(bool visible) {
  if (SheetFault held = Held(); !held.Good()) return held;
  Errand errand;
  errand.flag = visible;
  return Ask(Asker::load, errand,
             [](OfficeSession& session, Errand& asked) { return session.SetVisible(asked.flag); });
}

SheetFault CalcLink::Quit() {
  if (SheetFault held = Held(); !held.Good()) return held;
  Errand errand;
  return Ask(Asker::load, errand, [](OfficeSession& session, Errand&) { return session.Quit(); });
}

// ---- workbooks and windows

BookView* CalcLink::Known(Workbook workbook) {
  const auto found = held_ ? books_.find(workbook) : books_.end();
  return found == books_.end() ? nullptr : &found->second;
}

// What the user has in front is looked at once; from there on the operations say what is active.
SheetFault CalcLink::LookAtActive() {
  if (SheetFault held = Held(); !held.Good()) return held;
  if (lookedAtActive_) return {};
  Errand errand;
  SheetFault fault = Ask(CurrentAsker(), errand,
                         [](OfficeSession& session, Errand& asked) { return session.Look(asked.view); });
  if (!fault.Good()) return fault;
  lookedAtActive_ = true;
  active_ = errand.view.workbook;
  if (active_ != kNoWorkbook) books_[active_] = errand.view;
  return {};
}

SheetFault CalcLink::ActiveWorkbook(Workbook& workbook) {
  SheetFault fault = LookAtActive();
  if (fault.Good()) workbook = scratch_ && scratch_->active ? kScratchWorkbook : active_;
  return fault;
}

SheetFault CalcLink::ActiveWorkbookName(std::string& name) {
  SheetFault fault = LookAtActive();
  if (!fault.Good()) return fault;
  if (scratch_ && scratch_->active) {
    name = scratch_->caption;
    return {};
  }
  const BookView* book = Known(active_);
  if (book == nullptr) return FaultOf(kFaultNoObject);
  name = book->name;
  return {};
}

SheetFault CalcLink::WorkbookWindowsCount(Workbook workbook, int& count) {
  if (SheetFault held = HeldBook(workbook); !held.Good()) return held;
  count = 1;
  return {};
}

SheetFault CalcLink::WorkbookWindowCaption(Workbook workbook, int index, std::string& caption) {
  if (SheetFault held = HeldBook(workbook); !held.Good()) return held;
  const BookView* book = Known(workbook);
  if (index != 1) return FaultOf(kFaultOutOfBounds);
  caption = book->caption;
  return {};
}

// The scratch workbook is the newest window of all.
SheetFault CalcLink::WindowTitles(std::vector<std::string>& titles) {
  if (SheetFault held = Held(); !held.Good()) return held;
  Errand errand;
  SheetFault fault = Ask(Asker::load, errand,
                         [](OfficeSession& session, Errand& asked) { return session.Captions(asked.texts); });
  if (!fault.Good()) return fault;
  titles = std::move(errand.texts);
  if (scratch_) titles.insert(titles.begin(), scratch_->caption);
  return {};
}

SheetFault CalcLink::WindowsCount(int& count) {
  std::vector<std::string> titles;
  SheetFault fault = WindowTitles(titles);
  if (fault.Good()) count = static_cast<int>(titles.size());
  return fault;
}

SheetFault CalcLink::WindowCaption(int index, std::string& caption) {
  std::vector<std::string> titles;
  SheetFault fault = WindowTitles(titles);
  if (!fault.Good()) return fault;
  if (index < 1 || static_cast<std::size_t>(index) > titles.size()) return FaultOf(kFaultOutOfBounds);
  caption = titles[static_cast<std::size_t>(index) - 1];
  return {};
}

SheetFault CalcLink::WorkbooksActivate(const std::string& caption) {
  SheetFault looked = LookAtActive();
  if (!looked.Good()) return looked;
  const bool isScratch = scratch_ && scratch_->caption == caption;
  if (scratch_) scratch_->active = isScratch;
  const BookView* active = Known(active_);
  if (isScratch || (active != nullptr && active->caption == caption)) return {};
  Errand errand;
  errand.text = caption;
  SheetFault fault = Ask(Asker::load, errand, [](OfficeSession& session, Errand& asked) {
    return session.LookAt(asked.text, asked.view);
  });
  if (!fault.Good()) return fault;
  active_ = errand.view.workbook;
  books_.emplace(active_, errand.view);
  return {};
}

SheetFault CalcLink::WorkbooksAdd() {
  std::vector<std::string> titles;
  scratch_.reset();
  SheetFault fault = WindowTitles(titles);
  if (!fault.Good()) return fault;
  scratch_ = std::make_shared<Scratch>();
  scratch_->caption = kScratchName;
  while (std::find(titles.begin(), titles.end(), scratch_->caption) != titles.end())
    scratch_->caption += " 2";
  return {};
}

SheetFault CalcLink::ActiveWindowClose(bool /*SaveChanges*/, bool /*RouteWorkbook*/) {
  if (SheetFault held = Held(); !held.Good()) return held;
  if (!scratch_) return FaultOf(kFaultNoObject);
  scratch_.reset();
  return {};
}

}  // namespace quorb
