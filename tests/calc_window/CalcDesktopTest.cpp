
#include <QMessageBox>
#include <QPushButton>

#include "CalcWindow.h"

namespace quorb {
namespace {

/// Calc's window stands beside the program's on the same display.
class CalcDesktop : public CalcWindow {
 protected:
  static void SetUpTestSuite() { office_ = std::make_unique<RealOffice>(getenv("DISPLAY")); }

  static std::string Shown(int document, int row, int column) {
    std::string text;
    EXPECT_TRUE(User().Shown(document, 0, row, column, text).Good());
    return text;
  }
  void TypeIntoCalc(int document, const std::string& words) {
    ASSERT_TRUE(User().ToFront(document).Good());
    QTest::qWait(300);
    Drive(words);
    QTest::qWait(400);
  }
};

TEST_F(CalcDesktop, HalfTypedTextIsNotTakenOverByLooksAndLoads) {
  const int document = OpenSheet();
  FillPoints(document, "First", 5);
  Select(document, "B3");
  QTest::qWait(500);
  StartWatching();
  TypeIntoCalc(document, "type --delay 30 77");
  Screen("edit mode");
  WaitForPolls(5);
  EXPECT_EQ(LoadsStarted, 2) << "nothing has changed so far";
  EXPECT_EQ(Shown(document, 3, 2), "20000");
  // A whole load while the cell is being edited.
  frmMain->mnuUpdateExcel.clicked();
  ASSERT_TRUE(WaitUntilShown(3));
  EXPECT_EQ(Shown(document, 3, 2), "20000");
  EXPECT_EQ(MessageUserToPlot, "First");
  // The user types on where the text stood.
  TypeIntoCalc(document, "type --delay 30 88");
  Drive("key Return");
  EXPECT_TRUE(QTest::qWaitFor([&] { return Shown(document, 3, 2) == "7788"; })) << Shown(document, 3, 2);
}

TEST_F(CalcDesktop, WhenAllWorkbooksAreClosedTheQuestionComesOnce) {
  QtDialogs boxes;
  SetDialogs(&boxes);
  const int document = OpenSheet();
  FillPoints(document, "First", 5);
  Select(document, "F1");
  StartWatching();
  std::vector<std::string> told;
  const auto isUp = [] { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()) != nullptr; };
  const auto answer = [&](QMessageBox::StandardButton button) {
    return [&told, button] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      QTest::qWait(200);
      Screen("closed " + std::to_string(told.size()));
      told.push_back(box->windowTitle().toStdString());
      box->button(button)->click();
    };
  };
  const Script script({{isUp, answer(QMessageBox::Cancel)}, {isUp, answer(QMessageBox::Ok)}});
  ASSERT_TRUE(User().SetModified(document, false).Good());
  TypeIntoCalc(document, "key ctrl+w");
  Closed(document);
  ASSERT_TRUE(QTest::qWaitFor([&] { return script.Done(); }, 5000));
  WaitForPolls(6);
  EXPECT_THAT(told, testing::ElementsAre("Excel Still running in the memory", "Help"));
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_EQ(LoadsStarted, 2);
  EXPECT_TRUE(office_->Runs());
}

}  // namespace
}  // namespace quorb
