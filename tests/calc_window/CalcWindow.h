#pragma once

#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QScreen>
#include <algorithm>
#include <filesystem>
#include <utility>

#include "CalcLink.h"
#include "OpenWindow.h"
#include "RealOffice.h"
#include "SheetLink.h"

namespace quorb {

/// One look of the watcher at the sheet.
struct PollRecord {
  std::chrono::steady_clock::time_point begin, end;
  int loads = 0;          ///< That it began.
  bool answered = false;  ///< False for one that Calc kept waiting, and that was passed over.
};

/// Counts the cells that Calc tells: the last thing that a look asks for.
class CountingLink : public CalcLink {
 public:
  using CalcLink::CalcLink;
  SheetFault ActiveCellFormula(Workbook workbook, std::string& formula) override {
    SheetFault fault = CalcLink::ActiveCellFormula(workbook, formula);
    if (fault.Good()) ++cellsTold;
    return fault;
  }
  int cellsTold = 0;
};

/// Steps that are taken one behind the other, each as soon as it may, from within the events that a load lets
/// through.
class Script : public QObject {
 public:
  struct Step {
    std::function<bool()> when;
    std::function<void()> act;
  };
  explicit Script(std::vector<Step> steps) : steps_(std::move(steps)) {
    connect(&timer_, &QTimer::timeout, this, [this] { Go(); });
    timer_.start(30);
  }
  bool Done() const { return next_ == steps_.size(); }

 private:
  void Go() {
    if (Done() || isActing_ || !steps_[next_].when()) return;
    isActing_ = true;
    steps_[next_].act();
    isActing_ = false;
    ++next_;
  }

  QTimer timer_;
  std::vector<Step> steps_;
  std::size_t next_ = 0;
  bool isActing_ = false;
};

/// The real window on what a user has open in a real Calc, wired as the program wires it. All tests of a
/// suite share one office; each opens documents of its own.
class CalcWindow : public OpenWindow {
 protected:
  using milliseconds = std::chrono::milliseconds;

  static void SetUpTestSuite() { office_ = std::make_unique<RealOffice>(); }
  static void TearDownTestSuite() { office_.reset(); }

  void SetUp() override {
    ASSERT_TRUE(office_->Ready());
    SetSheetLink(Link());
    // The data file goes where images go.
    settings.Write("Use", "SetDirBMP", run.File(""));
  }
  void TearDown() override {
    heartbeat_.stop();
    window.reset();
    SetSheetLink(nullptr);
    link_.reset();
    if (!office_->Ready()) return;
    for (const int document : opened_)
      (void)User().Close(document);
  }

  static OfficeUser& User() { return office_->User(); }

  /// The link that the window works with.
  CalcLink* Link() {
    CalcLinkOptions options = office_->Options();
    options.pollPatience = CalcLinkOptions().pollPatience;
    options.attachPatience = CalcLinkOptions().attachPatience;
    link_ = std::make_unique<CountingLink>(options);
    return link_.get();
  }

  // ---- what the user does in Calc

  int OpenSheet() {
    int document = 0;
    EXPECT_TRUE(User().OpenSheet(document).Good());
    opened_.push_back(document);
    return document;
  }
  void Closed(int document) { std::erase(opened_, document); }
  static void Type(int document, int row, int column, const std::string& text, int sheet = 0) {
    EXPECT_TRUE(User().Type(document, sheet, row, column, text).Good());
  }
  static void Select(int document, const std::string& range, int sheet = 0) {
    EXPECT_TRUE(User().Select(document, sheet, range).Good());
  }
  static UserState StateOf(int document) {
    UserState state;
    const SheetFault fault = User().State(document, state);
    EXPECT_TRUE(fault.Good()) << fault.description;
    return state;
  }

  /// The specification of rows 2 to `last`. Each axis is scaled by itself, so that no Earth is drawn, which
  /// takes long where there is no graphics card.
  static std::string Formula(const std::string& title, int last) {
    const std::string end = std::to_string(last);
    return "=LEN(\"" + title + " kmday\")+MAX(A2:C" + end + ")+MAX(D2:D" + end + ")";
  }

  /// Six points in A2:D7; the specification that stands in F1 shows rows 2 to `last`.
  static void FillPoints(int document, const std::string& title, int last, int sheet = 0) {
    const int points[6][3] = {{10000, 0, 0},     {0, 20000, 0},     {0, 30000, 5000},
                              {40000, 0, 20000}, {40000, 40000, 0}, {-30000, -20000, 45000}};
    for (int i = 0; i < 6; ++i) {
      for (int column = 0; column < 3; ++column)
        Type(document, i + 2, column + 1, std::to_string(points[i][column]), sheet);
      Type(document, i + 2, 4, std::to_string(i), sheet);
    }
    if (!title.empty()) Type(document, 1, 6, Formula(title, last), sheet);
  }

  // ---- the window

  /// Shows the window without a file; its first load begins as soon as events are let through.
  void Start() {
    window = std::make_unique<ViewerWindow>();
    window->frameShown = [this] { NoteFrame(); };
    window->Load("");
    auto watch = TheScene->WatchSheet;
    TheScene->WatchSheet = [this, watch] {
      const int loads = LoadsStarted;
      const int cells = link_->cellsTold;
      const auto begin = Clock::now();
      watch();
      polls.push_back({begin, Clock::now(), LoadsStarted - loads, link_->cellsTold > cells});
    };
    window->show();
    plot = window->findChild<QOpenGLWidget*>();
    window->activateWindow();
  }

  /// True once the plot of the load with this number, counted from 1, is on the screen to its last row.
  bool IsShown(int load) const { return shownLoad_ == load && LoadsStarted == load; }
  bool WaitUntilShown(int load, int atMost = 20000) {
    return QTest::qWaitFor([&] { return IsShown(load); }, atMost);
  }
  /// When that was, first.
  Clock::time_point ShownAt(int load) const { return shownAt_.at(static_cast<std::size_t>(load)); }

  void StartAndShow() {
    Start();
    ASSERT_TRUE(WaitUntilShown(1));
  }

  /// Chooses Interactive in its menu with the mouse.
  void ChooseInteractive() {
    ClickMenu("&OptionsInteractive");
    QMenu* menu = nullptr;
    ASSERT_TRUE(QTest::qWaitFor([&] {
      menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      return menu != nullptr && menu->isVisible();
    }));
    const QPoint place = menu->actionGeometry(menu->actions().first()).center();
    ClickOnScreen(menu->mapToGlobal(place));
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() == nullptr; }));
  }
  void ClickMenu(const std::string& caption) const {
    for (QAction* action : window->menuBar()->actions()) {
      const QPoint place = window->menuBar()->actionGeometry(action).center();
      if (action->text().toStdString() == caption) ClickOnScreen(window->menuBar()->mapToGlobal(place));
    }
  }
  /// The user's own mouse and keys.
  void ClickOnScreen(const QPoint& place) const {
    Drive("mousemove " + std::to_string(place.x()) + " " + std::to_string(place.y()) + " click 1");
  }
  void Drive(const std::string& words) const { EXPECT_EQ(run.Run("xdotool", words).status, 0) << words; }

  /// Interactive goes on and the first look, which always loads, is over: all is calm.
  void StartWatching() {
    StartAndShow();
    ChooseInteractive();
    ASSERT_TRUE(WaitUntilShown(2));
    ASSERT_EQ(FormulaArmed, 0);
    ASSERT_TRUE(frmMain->mnuOinteractive.checked);
  }

  /// Waits for that many further looks at the sheet.
  void WaitForPolls(std::size_t count) {
    const std::size_t wanted = polls.size() + count;
    ASSERT_TRUE(QTest::qWaitFor([&] { return polls.size() >= wanted; }, 15000)) << polls.size();
  }
  /// Waits for that many further looks that Calc answers.
  void WaitForAnswers(int count) {
    const std::size_t first = polls.size();
    ASSERT_TRUE(QTest::qWaitFor([&] { return AnsweredSince(first) >= count; }, 15000)) << polls.size();
  }
  int AnsweredSince(std::size_t first) const {
    const auto begin = polls.begin() + static_cast<std::ptrdiff_t>(first);
    return static_cast<int>(
        std::count_if(begin, polls.end(), [](const PollRecord& p) { return p.answered; }));
  }

  /// What is on the whole screen; a file of this name keeps it for a person to look at.
  static QImage Screen(const std::string& name) {
    const QPixmap shot = QGuiApplication::primaryScreen()->grabWindow(0);
    std::filesystem::create_directories(QUORB_SCREEN_OUTPUT);
    EXPECT_TRUE(shot.save(QString::fromStdString(QUORB_SCREEN_OUTPUT "/" + name + ".png")));
    return shot.toImage();
  }
  /// The part of it in which the plot stands.
  QImage PlotOnScreen(const std::string& name) const {
    return Screen(name).copy(QRect(plot->mapToGlobal(QPoint(0, 0)), plot->size()));
  }
  /// The same once it has come to rest.
  QImage SettledPlot(const std::string& name) const {
    QImage last = PlotOnScreen(name);
    const bool isAtRest = QTest::qWaitFor(
        [&] {
          QTest::qWait(150);
          return std::exchange(last, PlotOnScreen(name)) == last;
        },
        5000);
    EXPECT_TRUE(isAtRest) << name << ": the plot never comes to rest";
    return last;
  }

  // ---- responsiveness

  /// From here on something changes in the plot all the time, so that frames come, and the longest time
  /// between two frames and between two events is kept.
  void StartHeartbeat() {
    ForgetBeats();
    isBeating_ = true;
    QObject::connect(&heartbeat_, &QTimer::timeout, window.get(), [this] {
      const auto now = Clock::now();
      longestBeat = std::max<Clock::duration>(longestBeat, now - lastBeat_);
      lastBeat_ = now;
      USERFLAG.ThicknessLinePlot = USERFLAG.ThicknessLinePlot == 1 ? 2 : 1;
    });
    heartbeat_.start(10);
  }
  /// Counts from here on: behind what the test itself has held up.
  void ForgetBeats() {
    lastBeat_ = lastBeatFrame_ = Clock::now();
    longestBeat = longestFrame = milliseconds(0);
  }
  static double Milliseconds(Clock::duration time) {
    return std::chrono::duration<double, std::milli>(time).count();
  }

  std::vector<PollRecord> polls;
  Clock::duration longestBeat{}, longestFrame{};

  static std::unique_ptr<RealOffice> office_;

 private:
  void NoteFrame() {
    const auto now = Clock::now();
    frameTimes.push_back(now);
    if (isBeating_) longestFrame = std::max<Clock::duration>(longestFrame, now - lastBeatFrame_);
    lastBeatFrame_ = now;
    const bool whole = LoadBusy == 0 && DEJADRAW == 1 && TheScene->CURRINDEXI == LastPoint;
    if (!whole || shownLoad_ == LoadsStarted) return;
    shownLoad_ = LoadsStarted;
    shownAt_.resize(static_cast<std::size_t>(shownLoad_) + 1);
    shownAt_.back() = now;
  }

  std::unique_ptr<CountingLink> link_;
  std::vector<int> opened_;
  QTimer heartbeat_;
  bool isBeating_ = false;
  Clock::time_point lastBeat_, lastBeatFrame_;
  int shownLoad_ = 0;
  std::vector<Clock::time_point> shownAt_;
};

inline std::unique_ptr<RealOffice> CalcWindow::office_;

}  // namespace quorb
