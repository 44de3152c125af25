#include "ViewerWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QVBoxLayout>
#include <cmath>

#include "ControlBinding.h"
#include "DueTicks.h"
#include "KeyCodes.h"
#include "UserFlag.h"
#include "frmMain.h"

namespace quorb {

namespace {

constexpr int kBarWidth = 170;
constexpr int kBarHeight = 15;
constexpr int kButtonHeight = 19;
constexpr int kStripHeight = 60;

int Pixels(double twips) {
  return static_cast<int>(std::lround(twips / kTwipsPerPixel));
}

QRect PlaceOf(const Control& control) {
  return {Pixels(control.Left), Pixels(control.Top), Pixels(control.Width), Pixels(control.Height)};
}

}  // namespace

ViewerWindow::ViewerWindow() {
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
  for (int tick = 0; tick < due; ++tick)
    TheScene->TheUpdateTimer_ThatTime();
}

ViewerWindow::~ViewerWindow() {
  qApp->removeEventFilter(this);
  delete plot_;
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
  MakeMenus();
  resize(1280, 860);
}

void ViewerWindow::MakeWidgets() {
  MainWindow& window = *frmMain;
  window.form.refresh = [this] { setWindowTitle(QString::fromStdString(frmMain->form.caption)); };
  window.form.refresh();
  window.GlPlace.refresh = [this] { plot_->setGeometry(PlaceOf(frmMain->GlPlace)); };
  window.GlPlace.takeFocus = [this] { plot_->setFocus(); };

  strip_ = new QWidget(canvas_);
  auto* rows = new QVBoxLayout(strip_);
  rows->setContentsMargins(8, 2, 8, 2);
  rows->setSpacing(2);
  auto* bars = new QHBoxLayout;
  bars->addWidget(MakeBar(window.HScroll4, window.Text10));
  bars->addWidget(MakeBar(window.HScroll1, window.Text3));
  bars->addWidget(MakeBar(window.HScroll2, window.Text2));
  bars->addWidget(MakeLocalView());
  bars->addWidget(MakeBar(window.HScroll8, window.Text16));
  bars->addWidget(MakeBar(window.HScroll10, window.Text18));
  bars->addStretch(1);
  auto* progress = new QProgressBar(strip_);
  progress->setFixedSize(Pixels(window.ProgressBar1.Width), kBarHeight);
  BindProgress(*progress, window.ProgressBar1);
  bars->addWidget(progress);
  rows->addLayout(bars);
  rows->addStretch(1);
  auto* line = new QHBoxLayout;
  auto* specification = new SpecificationBox(strip_);
  BindSpecification(*specification, window.Combo1);
  line->addWidget(specification);
  auto* status = new QLabel(strip_);
  BindLine(*status, window.Text14);
  line->addWidget(status);
  line->addStretch(1);
  rows->addLayout(line);
  window.StatusBar1.Height = kStripHeight * kTwipsPerPixel;

  prompt_ = new QLabel(canvas_);
  prompt_->setObjectName("TextTempo");
  prompt_->setStyleSheet("background-color: rgb(192, 255, 255); color: black; padding: 2px;");
  BindLine(*prompt_, window.TextTempo);
  demonstration_ = new CommandButton(canvas_);
  BindButton(*demonstration_, window.Command6);

  log_ = new QPlainTextEdit(canvas_);
  BindLog(*log_, window.Text20);
}

QWidget* ViewerWindow::MakeBar(ScrollBar& bar, Label& label) {
  auto* holder = new QWidget(strip_);
  auto* column = new QVBoxLayout(holder);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  auto* text = new QLabel(holder);
  BindLabel(*text, label);
  column->addWidget(text);
  column->addWidget(MakeSlider(bar, holder));
  return holder;
}

QScrollBar* ViewerWindow::MakeSlider(ScrollBar& bar, QWidget* parent) {
  auto* slider = new QScrollBar(Qt::Horizontal, parent);
  slider->setFixedSize(kBarWidth, kBarHeight);
  BindBar(*slider, bar);
  connect(slider, &QScrollBar::valueChanged, this, [] { glxCtl1->Redraw(); });
  return slider;
}

QWidget* ViewerWindow::MakeLocalView() {
  auto* holder = new QWidget(strip_);
  auto* column = new QVBoxLayout(holder);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  auto* button = new CommandButton(holder);
  button->setFixedHeight(kButtonHeight);
  BindButton(*button, frmMain->Command7);
  column->addWidget(button);
  column->addWidget(MakeSlider(frmMain->HScroll7, holder));
  return holder;
}

void ViewerWindow::MakeMenus() {
  MainWindow& window = *frmMain;
  QMenu* file = menuBar()->addMenu(QString());
  BindMenu(*file, window.mnuFile);
  BindEntry(*file->addAction(QString()), window.mnuFExit);
  QMenu* options = menuBar()->addMenu(QString());
  BindMenu(*options, window.mnuOptions);
  BindEntry(*options->addAction(QString()), window.mnuOinteractive);
  BindEntry(*menuBar()->addAction(QString()), window.mnuUpdateExcel);
  menuBar()->setVisible(window.mnuFile.visible);
}

void ViewerWindow::LayOut() {
  MainWindow& window = *frmMain;
  window.form.Width = canvas_->width() * kTwipsPerPixel;
  window.form.Height = canvas_->height() * kTwipsPerPixel;
  Form_Resize();
  PlaceWidgets();
}

void ViewerWindow::PlaceWidgets() {
  const int stripHeight = Pixels(frmMain->StatusBar1.Height);
  strip_->setGeometry(0, canvas_->height() - stripHeight, canvas_->width(), stripHeight);
  prompt_->setGeometry(0, Pixels(frmMain->TextTempo.Top), canvas_->width(),
                       Pixels(frmMain->TextTempo.Height));
  demonstration_->move(8, Pixels(frmMain->Command6.Top));
  demonstration_->resize(demonstration_->sizeHint().width(), Pixels(frmMain->Command6.Height));
  log_->setGeometry(canvas_->rect().adjusted(20, 20, -20, -20 - stripHeight));
}

void ViewerWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (activated_) return;
  activated_ = true;
  QTimer::singleShot(0, this, [] { Form_Activate(); });
}

void ViewerWindow::closeEvent(QCloseEvent* event) {
  event->accept();
  Form_Unload();
}

bool ViewerWindow::eventFilter(QObject* watched, QEvent* event) {
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
  if (redirecting_) return false;
  const bool plotHadFocus = plot_->hasFocus();
  int code = KeyCodeOf(event.key());
  const bool known = code != 0;
  const int shift = ShiftMaskOf(event.modifiers());
  if (down) {
    Form_KeyDown(code, shift);
  } else {
    Form_KeyUp(code, shift);
  }
  if (known && code == 0) return !focusWidget()->inherits("QComboBox");  // a letter is typed all the same
  if (!down || plotHadFocus || !plot_->hasFocus()) return false;
  redirecting_ = true;
  QApplication::sendEvent(plot_, &event);
  redirecting_ = false;
  return true;
}

}  // namespace quorb
