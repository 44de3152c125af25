#include <QPixmap>
#include <QVBoxLayout>

#include "ControlBinding.h"
#include "FloatingPanel.h"
#include "PanelParts.h"
#include "PanelWidget.h"
#include "frmMain.h"

namespace quorb {

namespace {

constexpr int kMargin = 12;
constexpr int kRowSpacing = 8;
constexpr QSize kPictureSize{240, 160};

QLabel* MakeParagraph(QWidget& parent, Label& control) {
  QLabel* const text = MakeLabel(parent, control);
  text->setWordWrap(true);
  return text;
}

QLabel* MakePicture(QWidget& parent, Picture& control, const char* name) {
  auto* widget = new QLabel(&parent);
  TieWidget(*widget, control);
  widget->setAccessibleName(name);
  const QIcon drawing(":/icons/" + QString::fromStdString(control.image) + ".svg");
  widget->setPixmap(drawing.pixmap(kPictureSize, widget->devicePixelRatio()));
  control.refresh = [widget, &control] { widget->setVisible(control.visible); };
  control.Refresh();
  return widget;
}

}  // namespace

QWidget* MakeSlideShowPanel(QWidget& canvas) {
  MainWindow& window = *frmMain;
  auto* panel = new FloatingPanel(window.Frame1, canvas);
  auto* rows = new QVBoxLayout(panel);
  rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  rows->setSpacing(kRowSpacing);
  rows->addWidget(MakePanelTitle(*panel, window.Frame1));
  QLabel* const copyIt = MakeParagraph(*panel, window.Label2[0]);
  rows->addWidget(copyIt);
  QLineEdit* const line = MakeWideField(*panel, window.Text1, "");
  line->setReadOnly(true);
  copyIt->setBuddy(line);
  rows->addWidget(line);
  rows->addWidget(MakeCommand(*panel, window.Command4), 0, Qt::AlignLeft);
  rows->addWidget(MakeParagraph(*panel, window.Label2[1]));
  auto* pictures = new QHBoxLayout;
  pictures->addWidget(MakePicture(*panel, window.Picture1[0], "A slide with the menu of an image"));
  pictures->addWidget(MakePicture(*panel, window.Picture1[1], "The dialog of an action"));
  pictures->addStretch(1);
  rows->addLayout(pictures);
  for (std::size_t i = 2; i < window.Label2.size(); ++i)
    rows->addWidget(MakeParagraph(*panel, window.Label2[i]));
  rows->addStretch(1);
  rows->addWidget(MakeCommand(*panel, window.Command5), 0, Qt::AlignRight);
  panel->SetFirstFocus(*line);
  panel->WatchPointer();
  return panel;
}

}  // namespace quorb
