#include <gmock/gmock.h>

#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>

#include "DrivenWindow.h"

namespace quorb {
namespace {

using testing::HasSubstr;
using testing::Not;

/// What a user enters into the box for the specification.
class Specification : public DrivenWindow {
 protected:
  QComboBox& Box() const { return Find<QComboBox>("Combo1"); }

  /// Gives the box the keyboard and enters a text, which comes out of the clipboard.
  void Enter(const std::string& text) const {
    Box().lineEdit()->setFocus();
    Box().lineEdit()->selectAll();
    QTest::keyClick(window->windowHandle(), Qt::Key_Delete);
    QApplication::clipboard()->setText(QString::fromStdString(text));
    QTest::keyClick(window->windowHandle(), Qt::Key_V, Qt::ControlModifier);
    Key(Qt::Key_Return);
  }
};

TEST_F(Specification, AnyTextIsTakenAsItStands) {
  OpenSmallPlot();
  for (const std::string text : {"=MAX(A2:C60)", "letters and no formula", "1e300", "=MAX(", "é 中 \"'"}) {
    SpecTyped = 0;
    Enter(text);
    EXPECT_EQ(SpecTyped, 1);
    EXPECT_EQ(SpecTypedText, text);
    EXPECT_EQ(Box().currentText().toStdString(), text);
  }
}

TEST_F(Specification, AnEmptyTextIsTakenToo) {
  OpenSmallPlot();
  Enter("=MAX(A2:C60)");
  SpecTyped = 0;
  Box().lineEdit()->selectAll();
  Key(Qt::Key_Delete);
  Key(Qt::Key_Return);
  EXPECT_EQ(SpecTyped, 1);
  EXPECT_EQ(SpecTypedText, "");
}

TEST_F(Specification, ALongerOneThanAWorksheetTakesIsKeptWholeAndTold) {
  OpenSmallPlot();
  Enter(std::string(8192, 'a'));
  EXPECT_EQ(SpecTypedText.size(), 8192U);
  EXPECT_THAT(frmMain->Text21.text.Get(), Not(HasSubstr("characters")));
  Enter(std::string(10000, 'a'));
  EXPECT_EQ(SpecTypedText, std::string(10000, 'a'));
  EXPECT_EQ(Box().currentText().size(), 10000);
  const std::string message =
      "The specification has 10000 characters: a formula of a worksheet has 8192 at most.";
  EXPECT_EQ(frmMain->Text21.text.Get(), message);
  EXPECT_THAT(frmMain->Text20.text.Get(), HasSubstr(message));
  Settle();
}

TEST_F(Specification, LeavingTheBoxWithAnotherTextEntersIt) {
  OpenSmallPlot();
  SpecTyped = 0;
  Box().lineEdit()->setFocus();
  QTest::keyClicks(Box().lineEdit(), "=MAX(A2:C9)");
  EXPECT_EQ(SpecTyped, 0);
  plot->setFocus(Qt::MouseFocusReason);
  EXPECT_EQ(SpecTyped, 1);
  EXPECT_EQ(SpecTypedText, "=MAX(A2:C9)");
}

TEST_F(Specification, AKeyOfTheViewEntersNothing) {
  OpenSmallPlot();
  SpecTyped = 0;
  Box().lineEdit()->setFocus();
  QTest::keyClicks(Box().lineEdit(), "=MAX(A2:");
  Key(Qt::Key_Left);
  EXPECT_TRUE(plot->hasFocus());
  EXPECT_EQ(SpecTyped, 0);
  EXPECT_EQ(Box().currentText(), "=MAX(A2:");
}

}  // namespace
}  // namespace quorb
