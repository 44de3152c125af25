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

  /// Gives the box the keyboard and types a text, which is not entered yet.
  void Type(const QString& text) const {
    SpecTyped = 0;
    Box().lineEdit()->setFocus();
    // It opens as wide as the progress bar.
    EXPECT_TRUE(QTest::qWaitFor([this] { return Box().width() == Find("ProgressBar1").width(); }));
    QTest::keyClicks(Box().lineEdit(), text);
    EXPECT_EQ(SpecTyped, 0);
  }
  void ClickIntoPlot() const {
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, At(300, 300));
    EXPECT_TRUE(plot->hasFocus());
  }
  static void ExpectEntered(const std::string& text) {
    EXPECT_EQ(SpecTyped, 1);
    EXPECT_EQ(SpecTypedText, text);
  }
  static void BringForward(QWidget& other) {
    other.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
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
  Type("=MAX(A2:C9)");
  ClickIntoPlot();
  ExpectEntered("=MAX(A2:C9)");
}

TEST_F(Specification, LeavingTheBoxWithTheTextThatWasEnteredEntersNothing) {
  OpenSmallPlot();
  Enter("=MAX(A2:C9)");
  SpecTyped = 0;
  ClickIntoPlot();
  ClickOn(Box());
  EXPECT_TRUE(Box().hasFocus());
  ClickIntoPlot();
  EXPECT_EQ(SpecTyped, 0);
}

TEST_F(Specification, ADoubleClickEntersTheText) {
  OpenSmallPlot();
  Type("=MAX(A2:C9)");
  DoubleClickOn(*Box().lineEdit());
  ExpectEntered("=MAX(A2:C9)");
}

TEST_F(Specification, ATextFromBeforeAnotherWindowCameInFrontIsEnteredByLeavingTheBox) {
  OpenSmallPlot();
  QWidget other;
  other.setGeometry(0, 0, 50, 50);
  other.show();
  BringForward(*window);
  Type("=MAX(A2:C9)");
  BringForward(other);
  BringForward(*window);
  EXPECT_TRUE(Box().hasFocus());
  EXPECT_EQ(SpecTyped, 0);
  ClickIntoPlot();
  ExpectEntered("=MAX(A2:C9)");
}

TEST_F(Specification, ATextFromBeforeAKeyOfTheViewIsEnteredByComingBackAndLeavingTheBox) {
  OpenSmallPlot();
  Type("=MAX(A2:C9)");
  Key(Qt::Key_Left);
  ClickOn(Box());
  EXPECT_TRUE(Box().hasFocus());
  EXPECT_EQ(SpecTyped, 0);
  ClickIntoPlot();
  ExpectEntered("=MAX(A2:C9)");
}

TEST_F(Specification, ATextFromBeforeTheProgramAskedForOneIsNoAnswer) {
  OpenSmallPlot();
  Type("=MAX(");
  Key(Qt::Key_Left);
  ASSERT_TRUE(plot->hasFocus());
  frmMain->Combo1.takeFocus();
  ASSERT_TRUE(Box().hasFocus());
  ClickIntoPlot();
  EXPECT_EQ(SpecTyped, 0);
}

TEST_F(Specification, ATextFromBeforeTheListWasOpenedIsEnteredByLeavingTheBox) {
  OpenSmallPlot();
  settings.Write("Use", "SpecsMax00.00", "=MAX(D2:D9)");
  Type("=MAX(A2:C9)");
  ASSERT_EQ(Box().count(), 1);
  Key(Qt::Key_F4);
  ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
  ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() == nullptr; }));
  EXPECT_EQ(Box().currentText(), "=MAX(A2:C9)");
  EXPECT_EQ(SpecTyped, 0);
  ClickIntoPlot();
  ExpectEntered("=MAX(A2:C9)");
}

TEST_F(Specification, OpeningAPanelEntersTheText) {
  OpenSmallPlot();
  Type("=MAX(A2:C9)");
  ClickOn(Find("Text14"));
  EXPECT_TRUE(Find("Options").isVisible());
  EXPECT_TRUE(Find("Options").hasFocus());
  ExpectEntered("=MAX(A2:C9)");
}

TEST_F(Specification, AKeyOfTheViewEntersNothing) {
  OpenSmallPlot();
  Type("=MAX(A2:");
  Key(Qt::Key_Left);
  EXPECT_TRUE(plot->hasFocus());
  EXPECT_EQ(SpecTyped, 0);
  EXPECT_EQ(Box().currentText(), "=MAX(A2:");
}

}  // namespace
}  // namespace quorb
