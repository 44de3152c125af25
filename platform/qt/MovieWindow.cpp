#include "MovieWindow.h"

#include <QCloseEvent>
#include <QFormLayout>
#include <QHBoxLayout>

#include "ActiveWindow.h"
#include "ControlBinding.h"
#include "PanelParts.h"
#include "frmVideo.h"

namespace quorb {

namespace {

constexpr int kBarWidth = 300;

void AddBar(QFormLayout& rows, QWidget& parent, ScrollBar& bar, Label& label) {
  auto* slider = new QScrollBar(Qt::Horizontal, &parent);
  slider->setMinimumWidth(kBarWidth);
  slider->setFocusPolicy(Qt::StrongFocus);
  slider->setInvertedControls(false);  // the key to the right makes more
  slider->setAccessibleName(QString::fromStdString(label.caption).trimmed());
  BindBar(*slider, bar);
  rows.addRow(MakeLabel(parent, label), slider);
}

void AddLine(QFormLayout& rows, QWidget& parent, TextBox& line) {
  auto* text = new QLabel(&parent);
  BindLine(*text, line);
  rows.addRow("", text);
}

}  // namespace

MovieWindow::MovieWindow(QWidget* parent) : QDialog(parent) {
  VideoWindow& video = frmVideo();
  auto* rows = new QFormLayout(this);
  AddBar(*rows, *this, video.HScroll1, video.Label2);
  AddLine(*rows, *this, video.Text3);
  AddBar(*rows, *this, video.HScroll2, video.Label1);
  AddLine(*rows, *this, video.Text2);
  auto* seconds = new QLabel("Seconds between frames", this);
  QLineEdit* const period = MakeWideField(*this, video.Text1, "");
  seconds->setBuddy(period);
  rows->addRow(seconds, period);
  rows->addRow("", MakeCheck(*this, video.Check1));
  auto* buttons = new QHBoxLayout;
  for (Button* button : {&video.Command1, &video.Command2, &video.Command3}) {
    CommandButton* const widget = MakeCommand(*this, *button);
    widget->setAutoDefault(false);
    buttons->addWidget(widget);
  }
  rows->addRow(buttons);
  video.form.refresh = [this] {
    setWindowTitle(QString::fromStdString(frmVideo().form.caption));
    const bool isShown = frmVideo().form.visible;
    setVisible(isShown);
    if (isShown) {
      raise();
      activateWindow();
    }
  };
  video.form.refresh();
}

bool MovieWindow::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) WindowComesForward(ProgramWindow::movie);
  return QDialog::event(event);
}

void MovieWindow::closeEvent(QCloseEvent* event) {
  event->accept();
  frmVideo().Form_Close();
}

void MovieWindow::reject() {
  frmVideo().Form_Close();
}

}  // namespace quorb
