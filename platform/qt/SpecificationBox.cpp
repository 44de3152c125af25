#include "SpecificationBox.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <limits>

#include "KeyCodes.h"

namespace quorb {

namespace {

const char* const kFocusedColours = "QComboBox { background-color: rgb(128, 0, 255); color: white; }";
const char* const kPaleColours = "QComboBox { background-color: rgb(192, 255, 255); color: black; }";

}  // namespace

SpecificationBox::SpecificationBox(QWidget* parent) : QComboBox(parent) {
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  setCompleter(nullptr);
  lineEdit()->setMaxLength(std::numeric_limits<int>::max());  // nothing that is pasted gets lost unseen
  lineEdit()->installEventFilter(this);
  ShowColours(false);
}

void SpecificationBox::Enter() {
  textEntered_ = currentText();
  if (entered) entered();
}

void SpecificationBox::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter) textEntered_ = currentText();
  if (keyPressed) keyPressed(KeyCodeOf(event->key()));
  if (!isEnter) QComboBox::keyPressEvent(event);
}

void SpecificationBox::focusInEvent(QFocusEvent* event) {
  QComboBox::focusInEvent(event);
  ShowColours(true);
  // Where the program asks for a specification, what stands there from before is none.
  if (event->reason() == Qt::OtherFocusReason) textEntered_ = currentText();
  // The list that drops down gives the focus back: its entries stay as they are then.
  if (event->reason() != Qt::PopupFocusReason && gotFocus) gotFocus();
}

void SpecificationBox::focusOutEvent(QFocusEvent* event) {
  QComboBox::focusOutEvent(event);
  const bool comesBack =
      event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
  if (comesBack) return;
  ShowColours(false);
  // A key of the view gives the plot the focus: what is half typed is no entry.
  const bool leftByUser = event->reason() != Qt::OtherFocusReason;
  if (leftByUser && currentText() != textEntered_) Enter();
}

bool SpecificationBox::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonDblClick) Enter();
  return QComboBox::eventFilter(watched, event);
}

void SpecificationBox::ShowColours(bool focused) {
  setStyleSheet(focused ? kFocusedColours : kPaleColours);
}

}  // namespace quorb
