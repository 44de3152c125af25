#include "ControlBinding.h"

#include <QAbstractItemModel>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <algorithm>
#include <cmath>
#include <utility>

#include "ControlNames.h"
#include "frmDialog.h"
#include "frmVideo.h"

namespace quorb {

namespace {

/// Characters at the end of a log that are shown; setting more of them would hold the window up.
constexpr int kLongestShownLog = 200000;

/// The least width of an editable list: its arrow can be hit.
constexpr int kWidthOfArrow = 26;

QString Text(const std::string& text) {
  return QString::fromStdString(text);
}

/// Milliseconds between two moves of a progress bar that are painted at once: with each of them the whole
/// window is put together anew.
constexpr qint64 kBetweenPaintings = 150;

void ShowState(QWidget& widget, const Control& control) {
  widget.setVisible(control.visible);
  widget.setEnabled(control.enabled);
  widget.setToolTip(TipText(control.toolTip));
  widget.setAccessibleDescription(Text(control.toolTip));
}

/// The name of a control among these; empty when it is none of them.
std::string NameAmong(const std::vector<NamedControl>& all, const Control& control) {
  for (const NamedControl& named : all) {
    const Control* const known =
        std::visit([](auto* any) { return static_cast<const Control*>(any); }, named.control);
    if (known == &control) return named.name;
  }
  return {};
}

/// The same with the window's name in front.
std::string NameAmong(const std::vector<NamedControl>& all, const Control& control,
                      const std::string& window) {
  const std::string name = NameAmong(all, control);
  return name.empty() || name == window ? name : window + "." + name;
}

/// Runs a routine at each double click on a widget.
class DoubleClicks : public QObject {
 public:
  DoubleClicks(QWidget& widget, const TextBox& control) : QObject(&widget), control_(control) {
    widget.installEventFilter(this);
  }
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() != QEvent::MouseButtonDblClick || !control_.doubleClicked) return false;
    control_.doubleClicked();
    return true;
  }

 private:
  const TextBox& control_;
};

void TakeText(const QLineEdit& widget, TextBox& control) {
  // The widget is ahead of the control until the text is taken.
  const auto refresh = std::exchange(control.refresh, nullptr);
  control.selStart = widget.cursorPosition();
  control.selLength = 0;
  control.refresh = refresh;
  control.text = widget.text().toStdString();
}

void ShowText(QLineEdit& widget, const TextBox& control) {
  if (widget.text() != Text(control.text)) {
    widget.setText(Text(control.text));
    widget.setCursorPosition(control.selStart);
  }
  if (control.selLength > 0) widget.setSelection(control.selStart, control.selLength);
}

/// Whether a list shows these entries already.
bool HoldsEntries(const QAbstractItemModel& list, const QStringList& entries) {
  if (list.rowCount() != entries.size()) return false;
  for (int row = 0; row < list.rowCount(); ++row) {
    if (list.index(row, 0).data().toString() != entries[row]) return false;
  }
  return true;
}

}  // namespace

QString NameOf(const Control& control) {
  std::string name = frmMain != nullptr ? NameAmong(NamedControls(*frmMain), control) : "";
  if (name.empty()) name = NameAmong(NamedControls(frmVideo()), control, "frmVideo");
  if (name.empty()) name = NameAmong(NamedControls(frmDialog()), control, "frmDialog");
  return Text(name);
}

void TieWidget(QWidget& widget, Control& control) {
  const QString name = NameOf(control);
  if (!name.isEmpty()) widget.setObjectName(name);
  QObject::connect(&widget, &QObject::destroyed,
                   [&control] { control.takeFocus = control.refresh = nullptr; });
}

QString TipText(const std::string& toolTip) {
  constexpr int kLongestLine = 60;
  const QString text = Text(toolTip);
  return text.size() <= kLongestLine ? text : "<qt>" + text.toHtmlEscaped() + "</qt>";
}

void BindBar(QScrollBar& widget, ScrollBar& control) {
  TieWidget(widget, control);
  control.refresh = [&widget, &control] {
    const QSignalBlocker block(widget);
    ShowState(widget, control);
    widget.setRange(control.min, control.max);
    widget.setPageStep(control.largeChange);
    widget.setValue(control.value);
  };
  control.refresh();
  QObject::connect(&widget, &QScrollBar::valueChanged, &widget,
                   [&control](int value) { control.value = value; });
}

void BindLabel(QLabel& widget, Label& control) {
  TieWidget(widget, control);
  widget.setTextFormat(Qt::PlainText);
  control.refresh = [&widget, &control] {
    ShowState(widget, control);
    widget.setText(Text(control.caption));
  };
  control.refresh();
}

void BindLine(QLabel& widget, TextBox& control) {
  TieWidget(widget, control);
  widget.setTextFormat(Qt::PlainText);
  control.refresh = [&widget, &control] {
    ShowState(widget, control);
    widget.setText(Text(control.text));
  };
  control.refresh();
}

void BindLog(QPlainTextEdit& widget, TextBox& control) {
  TieWidget(widget, control);
  widget.setReadOnly(true);
  new DoubleClicks(*widget.viewport(), control);
  control.refresh = [&widget, &control] {
    ShowState(widget, control);
    if (!control.visible) return;
    widget.setPlainText(Text(control.text).right(kLongestShownLog));
    widget.moveCursor(QTextCursor::End);
  };
  control.refresh();
}

void BindField(QLineEdit& widget, TextBox& control) {
  TieWidget(widget, control);
  control.refresh = [&widget, &control] {
    const QSignalBlocker block(widget);
    ShowState(widget, control);
    ShowText(widget, control);
    const QColor colour(static_cast<QRgb>(control.colour.Get()));
    widget.setStyleSheet(control.colour == kBlack ? QString() : "color: " + colour.name());
  };
  control.refresh();
  control.takeFocus = [&widget] { widget.setFocus(); };
  QObject::connect(&widget, &QLineEdit::textChanged, &widget,
                   [&widget, &control] { TakeText(widget, control); });
}

void BindCheck(QCheckBox& widget, CheckBox& control) {
  TieWidget(widget, control);
  widget.setText(Text(control.caption));
  control.refresh = [&widget, &control] {
    const QSignalBlocker block(widget);
    ShowState(widget, control);
    widget.setCheckState(control.value == 0   ? Qt::Unchecked
                         : control.value == 1 ? Qt::Checked
                                              : Qt::PartiallyChecked);
  };
  control.refresh();
  QObject::connect(&widget, &QCheckBox::clicked, &widget,
                   [&control](bool checked) { control.value = checked ? 1 : 0; });
}

void BindList(QListWidget& widget, ListBox& control,
              const std::function<QString(const std::string&)>& shown) {
  TieWidget(widget, control);
  control.refresh = [&widget, &control, shown] {
    const QSignalBlocker block(widget);
    ShowState(widget, control);
    QStringList entries;
    for (const std::string& entry : control.items.Get())
      entries.append(shown(entry));
    // Between the two clicks of a double click the entries stay as they are.
    if (!HoldsEntries(*widget.model(), entries)) {
      widget.clear();
      widget.addItems(entries);
    }
    widget.setCurrentRow(control.selected);
  };
  control.refresh();
  control.takeFocus = [&widget] { widget.setFocus(); };
  // The routines may fill the list anew, which it must not see inside its own signal. A row that was waiting
  // meanwhile belongs to the list as it was.
  QObject::connect(
      &widget, &QListWidget::currentRowChanged, &widget,
      [&widget, &control](int row) {
        if (row == widget.currentRow()) control.selected = row;
      },
      Qt::QueuedConnection);
  QObject::connect(
      &widget, &QListWidget::itemDoubleClicked, &widget,
      [&control] {
        if (control.doubleClicked) control.doubleClicked();
      },
      Qt::QueuedConnection);
}

void BindButton(CommandButton& widget, Button& control) {
  TieWidget(widget, control);
  control.refresh = [&widget, &control] {
    ShowState(widget, control);
    widget.setText(Text(control.caption));
  };
  control.refresh();
  control.takeFocus = [&widget] { widget.setFocus(); };
  QObject::connect(&widget, &QPushButton::clicked, &widget, [&control] {
    if (control.clicked) control.clicked();
  });
  widget.keyPressed = [&control] {
    if (control.keyPressed) control.keyPressed();
  };
}

void BindSpecification(SpecificationBox& widget, ComboBox& control) {
  TieWidget(widget, control);
  control.refresh = [&widget, &control] {
    const QSignalBlocker block(widget);
    ShowState(widget, control);
    const int wanted = static_cast<int>(std::lround(control.Width / kTwipsPerPixel));
    widget.setFixedWidth(std::max(wanted, kWidthOfArrow));
    QStringList entries;
    for (const std::string& entry : control.items.Get())
      entries.append(Text(entry));
    if (!HoldsEntries(*widget.model(), entries)) {
      widget.clear();
      widget.addItems(entries);
    }
    if (widget.currentText() != Text(control.text)) widget.setEditText(Text(control.text));
  };
  control.refresh();
  control.takeFocus = [&widget] { widget.setFocus(); };
  QObject::connect(&widget, &QComboBox::editTextChanged, &widget,
                   [&control](const QString& text) { control.text = text.toStdString(); });
  widget.entered = [&control] {
    if (control.entered) control.entered();
  };
  widget.keyPressed = [&control](int key) {
    if (control.keyDown) control.keyDown(key);
  };
  widget.gotFocus = [&control] {
    if (control.gotFocus) control.gotFocus();
  };
}

void BindProgress(QProgressBar& widget, ProgressBar& control) {
  TieWidget(widget, control);
  widget.setRange(0, 100);
  widget.setTextVisible(false);
  QElapsedTimer sincePainted;
  sincePainted.start();
  control.refresh = [&widget, &control, sincePainted]() mutable {
    ShowState(widget, control);
    widget.setValue(static_cast<int>(std::lround(control.value)));
    if (!control.visible || sincePainted.elapsed() < kBetweenPaintings) return;
    widget.repaint();
    sincePainted.restart();
  };
  control.refresh();
}

}  // namespace quorb
