#include "ViewerStrip.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "ControlBinding.h"
#include "FlowLayout.h"
#include "LineLabel.h"
#include "PlotBar.h"
#include "frmMain.h"

namespace quorb {

namespace {

constexpr int kLeastBarWidth = 160;
constexpr int kSideMargin = 8, kEdgeMargin = 3;
constexpr int kColumnSpacing = 10, kRowSpacing = 4;
constexpr int kPanelMargin = 4;

int Pixels(double twips) {
  return static_cast<int>(std::lround(twips / kTwipsPerPixel));
}

QVBoxLayout* MakeColumn(QWidget* holder) {
  auto* column = new QVBoxLayout(holder);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(1);
  return column;
}

}  // namespace

ViewerStrip::ViewerStrip(QWidget* parent) : QWidget(parent) {
  setObjectName(NameOf(frmMain->StatusBar1));
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(kSideMargin, kEdgeMargin, kSideMargin, kEdgeMargin);
  rows->setSpacing(kRowSpacing);
  rows->addLayout(MakeBars());
  rows->addLayout(MakeStatusBar());
}

QLayout* ViewerStrip::MakeBars() {
  MainWindow& window = *frmMain;
  auto* bars = new FlowLayout(kColumnSpacing, kRowSpacing);
  bars->addWidget(MakeBar(window.HScroll4, window.Text10));
  bars->addWidget(MakeBar(window.HScroll1, window.Text3));
  bars->addWidget(MakeBar(window.HScroll2, window.Text2));
  bars->addWidget(MakeLocalView());
  bars->addWidget(MakeBar(window.HScroll8, window.Text16));
  bars->addWidget(MakeBar(window.HScroll10, window.Text18));
  return bars;
}

QLayout* ViewerStrip::MakeStatusBar() {
  MainWindow& window = *frmMain;
  auto* line = new QHBoxLayout;
  auto* specification = new SpecificationBox(this);
  specification->setAccessibleName("Specification");
  BindSpecification(*specification, window.Combo1);
  line->addWidget(specification);
  LineLabel* const status = MakePanel();
  BindLine(*status, window.Text14);
  line->addWidget(status, 3);
  hint_ = MakePanel();
  line->addWidget(hint_, 2);
  auto* progress = new QProgressBar(this);
  progress->setAccessibleName("Progress");
  progress->setFixedWidth(Pixels(window.ProgressBar1.Width));
  BindProgress(*progress, window.ProgressBar1);
  line->addWidget(progress);
  return line;
}

LineLabel* ViewerStrip::MakePanel() {
  auto* panel = new LineLabel(this);
  panel->setFrameStyle(static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Sunken));
  panel->setMargin(kPanelMargin);
  panel->clicked = [] { frmMain->StatusBar1.panelClicked(); };
  panel->doubleClicked = [] { frmMain->StatusBar1.doubleClicked(); };
  return panel;
}

QWidget* ViewerStrip::MakeBar(ScrollBar& bar, Label& label) {
  auto* holder = new QWidget(this);
  QVBoxLayout* const column = MakeColumn(holder);
  auto* text = new LineLabel(holder);
  BindLabel(*text, label);
  column->addWidget(text);
  column->addWidget(MakeSlider(bar, holder, label.caption));
  const int designed = text->fontMetrics().horizontalAdvance(text->text()) + 2 * kPanelMargin;
  holder->setFixedWidth(std::max(kLeastBarWidth, designed));
  return holder;
}

QWidget* ViewerStrip::MakeSlider(ScrollBar& bar, QWidget* parent, const std::string& name) {
  auto* slider = new PlotBar(parent);
  slider->setAccessibleName(QString::fromStdString(name));
  BindBar(*slider, bar);
  connect(slider, &QScrollBar::valueChanged, this, [] { glxCtl1->Redraw(); });
  return slider;
}

QWidget* ViewerStrip::MakeLocalView() {
  auto* holder = new QWidget(this);
  QVBoxLayout* const column = MakeColumn(holder);
  auto* button = new CommandButton(holder);
  BindButton(*button, frmMain->Command7);
  button->setFixedHeight(button->fontMetrics().height() + kPanelMargin);
  column->addWidget(button);
  column->addWidget(MakeSlider(frmMain->HScroll7, holder, "Local centre"));
  holder->setFixedWidth(kLeastBarWidth);
  return holder;
}

int ViewerStrip::HeightFor(int width) const {
  return layout()->totalHeightForWidth(width);
}

void ViewerStrip::ShowHint(const QString& hint) {
  hint_->setText(hint);
}

bool ViewerStrip::event(QEvent* event) {
  if (event->type() == QEvent::LayoutRequest && heightMayChange) heightMayChange();
  return QWidget::event(event);
}

}  // namespace quorb
