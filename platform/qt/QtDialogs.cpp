#include "QtDialogs.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <cstdio>
#include <cstdlib>

namespace quorb {

namespace {

constexpr int kButtonBits = 15;
constexpr int kIconBits = 112;

QMessageBox::StandardButtons ButtonsOf(int style) {
  switch (style & kButtonBits) {
    case kBoxOkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case kBoxAbortRetryIgnore:
      return QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore;
    case kBoxYesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case kBoxYesNo:
      return QMessageBox::Yes | QMessageBox::No;
    default:
      return QMessageBox::Ok;
  }
}

QMessageBox::Icon IconOf(int style) {
  switch (style & kIconBits) {
    case kBoxStopIcon:
      return QMessageBox::Critical;
    case kBoxQuestionIcon:
      return QMessageBox::Question;
    case kBoxExclamationIcon:
      return QMessageBox::Warning;
    case kBoxInformationIcon:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

BoxAnswer AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Ok:
      return BoxAnswer::ok;
    case QMessageBox::Cancel:
      return BoxAnswer::cancel;
    case QMessageBox::Abort:
      return BoxAnswer::abort;
    case QMessageBox::Retry:
      return BoxAnswer::retry;
    case QMessageBox::Ignore:
      return BoxAnswer::ignore;
    case QMessageBox::Yes:
      return BoxAnswer::yes;
    case QMessageBox::No:
      return BoxAnswer::no;
    default:
      return BoxAnswer::none;
  }
}

int layoutsUnderWay = 0;

}  // namespace

LayoutUnderWay::LayoutUnderWay() {
  ++layoutsUnderWay;
}

LayoutUnderWay::~LayoutUnderWay() {
  --layoutsUnderWay;
}

BoxAnswer QtDialogs::MessageBox(const std::string& prompt, const std::string& title, int style) {
  QMessageBox box(IconOf(style), QString::fromStdString(title), QString::fromStdString(prompt),
                  ButtonsOf(style), QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  return AnswerOf(box.exec());
}

std::string QtDialogs::InputBox(const std::string& prompt, const std::string& title,
                                const std::string& defaultText) {
  bool accepted = false;
  const QString line = QInputDialog::getText(QApplication::activeWindow(), QString::fromStdString(title),
                                             QString::fromStdString(prompt), QLineEdit::Normal,
                                             QString::fromStdString(defaultText), &accepted);
  return accepted ? line.toStdString() : std::string();
}

void QtDialogs::PumpEvents() {
  if (layoutsUnderWay == 0) QCoreApplication::processEvents();
}

void QtDialogs::EndProgram() {
  if (beforeEnd) beforeEnd();
  std::fflush(nullptr);
  std::_Exit(0);
}

}  // namespace quorb
