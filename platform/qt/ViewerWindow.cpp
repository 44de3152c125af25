#include "ViewerWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "ActiveWindow.h"
#include "ChooserWindow.h"
#include "ControlBinding.h"
#include "DueTicks.h"
#include "KeyCodes.h"
#include "LineLabel.h"
#include "MenuBinding.h"
#include "MovieWindow.h"
#include "PanelWidget.h"
#include "QtDialogs.h"
#include "RunState.h"
#include "ToolBarBinding.h"
#include "UserFlag.h"
#include "ViewerStrip.h"
#include "frmDialog.h"
#include "frmMain.h"
#include "frmVideo.h"

// The resources of a library have to be asked for, outside any namespace.
static void TakeIcons() {
  Q_INIT_RESOURCE(icons);
}

namespace quorb {

namespace {

constexpr int kWidestAtStart = 2000, kHighestAtStart = 1250;
/// What a window manager's frame may take of the screen's height.
constexpr int kFrameAllowance = 40;
constexpr int kTopMargin = 2;
constexpr int kBarSpacing = 12;
constexpr int kAroundLog = 20;
constexpr int kPromptMargin = 4;

int Pixels(double twips) {
  return static_cast<int>(std::lround(twips / kTwipsPerPixel));
}

QRect PlaceOf(const Control& control) {
  return {Pixels(control.Left), Pixels(control.Top), Pixels(control.Width), Pixels(control.Height)};
}

/// An open menu or list: it takes the keys, though the window stays the active one.
bool IsPopup(const QObject& object) {
  return object.isWidgetType() && static_cast<const QWidget&>(object).windowType() == Qt::Popup;
}

/// The position of the tool that a mouse mode is chosen with.
int PositionOf(MouseMode mode) {
  if (mode == MouseMode::select) return 1;
  return mode == MouseMode::zoom ? 3 : 2;
}

}  // namespace

ViewerWindow::ViewerWindow() {
  TakeIcons();
  setWindowIcon(QIcon(":/icons/quorb.svg"));
  canvas_ = new QWidget(this);
  plot_ = new PlotWidget(canvas_);
  setCentralWidget(canvas_);
  canvas_->installEventFilter(this);
  qApp->installEventFilter(this);
  runTime_.start();
  updateTimer_.setTimerType(Qt::PreciseTimer);
  connect(&updateTimer_, &QTimer::timeout, this, [this] { RunDueTicks(); });
  connect(plot_, &QOpenGLWidget::frameSwapped, this, [this] {
    if (frameShown) frameShown();
  });
}

void ViewerWindow::RunDueTicks() {
  const std::int64_t now = runTime_.elapsed();
  const int due = DueTicks(now - lastTick_, updateTimer_.interval(), USERFLAG.MovieFrameCount > 0);
  if (due > 0) lastTick_ = now;
  // Ticks that were due on the plot before say nothing about a new one.
  const int loads = LoadsStarted;
  for (int tick = 0; tick < due && LoadsStarted == loads; ++tick)
    TheScene->TheUpdateTimer_ThatTime();
}

ViewerWindow::~ViewerWindow() {
  qApp->removeEventFilter(this);
  LetGo();
  delete plot_;
}

void ViewerWindow::LetGo() {
  if (TheScene != nullptr) TheScene->TheUpdateTimer.changed = nullptr;
  if (frmMain == nullptr) return;
  frmMain->form.refresh = frmMain->GlPlace.refresh = frmMain->GlPlace.takeFocus = nullptr;
}

void ViewerWindow::Load(const std::string& commandLine) {
  Form_Load(commandLine, plot_->Host());
  TheScene->TheUpdateTimer.changed = [this](int milliseconds) {
    lastTick_ = runTime_.elapsed();
    if (milliseconds > 0) {
      updateTimer_.start(milliseconds);
    } else {
      updateTimer_.stop();
    }
  };
  plot_->Start(HostEventsOfWindow());
  MakeWidgets();
  const QSize room = screen()->availableGeometry().size();
  resize(std::min(room.width(), kWidestAtStart), std::min(room.height() - kFrameAllowance, kHighestAtStart));
}

void ViewerWindow::MakeWidgets() {
  BindMenuBar(*menuBar(), frmMain->menuBar);
  MakeTop();
  MakeStrip();
  MakeOverPlot();
  MakePanels();
  BindForm();
  OrderFocus();
  ShowMouseMode();
}

void ViewerWindow::MakeTop() {
  top_ = new QWidget(canvas_);
  auto* row = new QHBoxLayout(top_);
  row->setContentsMargins(kTopMargin, kTopMargin, kTopMargin, kTopMargin);
  row->setSpacing(kBarSpacing);
  viewBar_ = new ToolBarWidget(frmMain->Toolbar1, top_);
  viewBar_->OfferOrder();
  optionBar_ = new ToolBarWidget(frmMain->ToolBoptions, top_);
  for (ToolBarWidget* bar : {viewBar_, optionBar_}) {
    bar->clicked = [this] { ShowMouseMode(); };
    row->addWidget(bar);
  }
  for (const int position : {1, 2, 3})
    viewBar_->ActionAt(position).setCheckable(true);
  auto* message = new LineLabel(top_);
  BindLine(*message, frmMain->Text21);
  message->doubleClicked = [] { frmMain->Text21.doubleClicked(); };
  row->addWidget(message, 1);
  frmMain->Toolbar1.Height = top_->sizeHint().height() * kTwipsPerPixel;
}

void ViewerWindow::MakeStrip() {
  strip_ = new ViewerStrip(canvas_);
  strip_->heightMayChange = [this] {
    if (strip_->HeightFor(canvas_->width()) != strip_->height()) LayOut();
  };
}

void ViewerWindow::MakeOverPlot() {
  MainWindow& window = *frmMain;
  prompt_ = new QLabel(canvas_);
  prompt_->setStyleSheet("background-color: rgb(192, 255, 255); color: black; padding: 2px;");
  BindLine(*prompt_, window.TextTempo);
  window.TextTempo.Height = (prompt_->fontMetrics().height() + 2 * kPromptMargin) * kTwipsPerPixel;
  demonstration_ = new CommandButton(canvas_);
  BindButton(*demonstration_, window.Command6);
  window.Command6.Height = demonstration_->sizeHint().height() * kTwipsPerPixel;
  log_ = new QPlainTextEdit(canvas_);
  log_->setAccessibleName("Log");
  BindLog(*log_, window.Text20);
}

void ViewerWindow::MakePanels() {
  MakeOptionPanel(*canvas_);
  MakeSlideShowPanel(*canvas_);
  TieWidget(*new MovieWindow(this), frmVideo().form);
  auto* chooser = new ChooserWindow(this);
  TieWidget(*chooser, frmDialog().form);
  connect(chooser, &QObject::destroyed, [&dialog = frmDialog()] { dialog.runModal = nullptr; });
}

void ViewerWindow::BindForm() {
  MainWindow& window = *frmMain;
  window.form.refresh = [this] {
    setWindowTitle(QString::fromStdString(frmMain->form.caption));
    TakeFormSize();
  };
  window.GlPlace.refresh = [this] { plot_->setGeometry(PlaceOf(frmMain->GlPlace)); };
  window.GlPlace.takeFocus = [this] { plot_->setFocus(); };
  setWindowTitle(QString::fromStdString(window.form.caption));
  plot_->setObjectName(NameOf(window.GlPlace));
  plot_->setAccessibleName("Plot");
}

// The keyboard's way through the window: the plot, then from the top to the bottom.
void ViewerWindow::OrderFocus() {
  QWidget* last = plot_;
  for (QWidget* part :
       {static_cast<QWidget*>(viewBar_), static_cast<QWidget*>(optionBar_), static_cast<QWidget*>(log_),
        static_cast<QWidget*>(demonstration_), static_cast<QWidget*>(strip_)}) {
    QList<QWidget*> stops = part->findChildren<QWidget*>();
    stops.prepend(part);
    for (QWidget* stop : stops) {
      const bool isStop = (stop->focusPolicy() & Qt::TabFocus) != 0 && stop->focusProxy() == nullptr;
      if (!isStop || stop->window() != this) continue;
      setTabOrder(last, stop);
      last = stop;
    }
  }
}

void ViewerWindow::ShowMouseMode() {
  const int position = PositionOf(static_cast<MouseMode>(TheScene->EditState()));
  for (const int other : {1, 2, 3})
    viewBar_->ActionAt(other).setChecked(other == position);
  strip_->ShowHint(QString::fromStdString(frmMain->Toolbar1.Button(position).toolTip));
}

void ViewerWindow::TakeFormSize() {
  const int wanted = Pixels(frmMain->form.Height);
  if (!shown_ || wanted == canvas_->height()) return;
  if (isMaximized() || isFullScreen()) {
    frmMain->form.Height = canvas_->height() * kTwipsPerPixel;
  } else {
    resize(width(), height() + wanted - canvas_->height());
  }
}

// Known only once the window has its frame, and another one on another screen.
void ViewerWindow::MeasureFrame() {
  if (frmMain == nullptr) return;
  frmMain->form.screenHeight = screen()->geometry().height() * kTwipsPerPixel;
  frmMain->form.frameHeight = (frameGeometry().height() - canvas_->height()) * kTwipsPerPixel;
}

void ViewerWindow::LayOut() {
  const LayoutUnderWay underWay;
  MainWindow& window = *frmMain;
  window.StatusBar1.Height = strip_->HeightFor(canvas_->width()) * kTwipsPerPixel;
  MeasureFrame();
  // The height first: a form of another height than the window's asks for a new size.
  window.form.Height = canvas_->height() * kTwipsPerPixel;
  window.form.Width = canvas_->width() * kTwipsPerPixel;
  Form_Resize();
  PlaceWidgets();
}

void ViewerWindow::PlaceWidgets() {
  const int barHeight = Pixels(frmMain->Toolbar1.Height);
  const int stripHeight = Pixels(frmMain->StatusBar1.Height);
  top_->setGeometry(0, 0, canvas_->width(), barHeight);
  strip_->setGeometry(0, canvas_->height() - stripHeight, canvas_->width(), stripHeight);
  prompt_->setGeometry(0, Pixels(frmMain->TextTempo.Top), canvas_->width(),
                       Pixels(frmMain->TextTempo.Height));
  demonstration_->move(kAroundLog, Pixels(frmMain->Command6.Top));
  demonstration_->resize(demonstration_->sizeHint().width(), Pixels(frmMain->Command6.Height));
  log_->setGeometry(
      canvas_->rect().adjusted(kAroundLog, kAroundLog + barHeight, -kAroundLog, -kAroundLog - stripHeight));
}

bool ViewerWindow::event(QEvent* event) {
  const bool handled = QMainWindow::event(event);
  if (event->type() == QEvent::WindowActivate || event->type() == QEvent::Move) MeasureFrame();
  if (event->type() == QEvent::WindowActivate && activated_) WindowComesForward(ProgramWindow::main);
  if (event->type() == QEvent::WindowDeactivate) LetKeysGo();
  return handled;
}

void ViewerWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (shown_) return;
  shown_ = true;
  QTimer::singleShot(0, this, [this] {
    activated_ = true;
    WindowComesForward(ProgramWindow::main);
    ShowMouseMode();
  });
}

void ViewerWindow::closeEvent(QCloseEvent* event) {
  event->accept();
  Form_Unload();
}

bool ViewerWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Show && IsPopup(*watched)) LetKeysGo();
  if (watched == canvas_ && event->type() == QEvent::Resize && strip_ != nullptr) LayOut();
  const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
  if (isKey && TakesKeysFirst(*watched) &&
      PassKey(*static_cast<QKeyEvent*>(event), event->type() == QEvent::KeyPress)) {
    return true;
  }
  return QMainWindow::eventFilter(watched, event);
}

// The form sees a key once, before the control that has the focus.
bool ViewerWindow::TakesKeysFirst(const QObject& watched) const {
  if (!watched.isWidgetType() || static_cast<const QWidget&>(watched).window() != this) return false;
  return focusWidget() != nullptr ? &watched == focusWidget() : &watched == this;
}

bool ViewerWindow::PassKey(QKeyEvent& event, bool down) {
  // A key that is held has not gone up yet.
  if (redirecting_ || (!down && event.isAutoRepeat())) return false;
  const bool plotHadFocus = plot_->hasFocus();
  int code = KeyCodeOf(event.key());
  const bool known = code != 0;
  const int shift = ShiftMaskOf(event.modifiers());
  if (down) {
    Form_KeyDown(code, shift);
    ShowMouseMode();
  } else {
    Form_KeyUp(code, shift);
  }
  // A letter is typed all the same.
  const QWidget* const focused = focusWidget();
  if (known && code == 0) return focused == nullptr || !focused->testAttribute(Qt::WA_InputMethodEnabled);
  if (!down || plotHadFocus || !plot_->hasFocus()) return false;
  redirecting_ = true;
  QApplication::sendEvent(plot_, &event);
  redirecting_ = false;
  return true;
}

}  // namespace quorb
