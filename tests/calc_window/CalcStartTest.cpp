#include <QAbstractButton>
#include <QMessageBox>

#include "CalcWindow.h"
#include "CommandButton.h"
#include "SpecificationBox.h"

namespace quorb {
namespace {

constexpr QRgb kPurple = qRgb(128, 0, 255);
constexpr QRgb kPale = qRgb(192, 255, 255);

class CalcStart : public CalcWindow {
 protected:
  SpecificationBox& Box() const { return *window->findChild<SpecificationBox*>(); }
  QWidget& Prompt() const { return *window->findChild<QWidget*>("TextTempo"); }

  /// A colour of the specification's box as it is on the screen, where no text stands.
  QRgb BoxColour(const std::string& name) const {
    return Screen(name).pixel(Box().mapToGlobal(QPoint(2, Box().height() / 2)));
  }
  std::function<bool()> PromptIsUp() const {
    return [this] { return Prompt().isVisible() && Box().hasFocus(); };
  }
  void ClickRunDemo() const {
    for (const CommandButton* button : window->findChildren<CommandButton*>())
      if (button->text() == "Run Demo") ClickOnScreen(button->mapToGlobal(button->rect().center()));
  }
};

TEST_F(CalcStart, ThePlotOfTheOpenWorkbookIsShown) {
  const int document = OpenSheet();
  FillPoints(document, "Open", 7);
  Select(document, "B2");
  const UserState before = StateOf(document);
  Start();
  ASSERT_TRUE(WaitUntilShown(1));
  EXPECT_EQ(LastPoint, 5);
  EXPECT_EQ(MessageUserToPlot, "Open");
  EXPECT_EQ(StateOf(document), before);
  EXPECT_TRUE(window->menuBar()->isVisible());
  PlotOnScreen("plot");
}

TEST_F(CalcStart, ASpecificationIsTypedIntoTheBox) {
  const int document = OpenSheet();
  FillPoints(document, "", 7);
  Select(document, "B2");
  const UserState before = StateOf(document);
  const std::string typed = "=0.01+LEN(\"It Is In kmday\")+MAX(A2:C7)+MAX(D2:D7)";
  int followBefore = 0;
  Start();
  const Script script({
      {PromptIsUp(),
       [&] {
         QTest::qWait(300);
         EXPECT_EQ(BoxColour("prompt"), kPurple);
         EXPECT_TRUE(frmMain->Command6.visible);
         followBefore = LocalFollow;
         Drive("type --delay 15 '" + typed + "'");
       }},
      {[&] { return Box().currentText().toStdString() == typed; },
       [&] {
         Screen("typed");
         EXPECT_EQ(LocalFollow, 1 - followBefore) << "the form saw the one t as well";
         Drive("key Return");
       }},
  });
  const bool shown = WaitUntilShown(1, 15000);
  if (!shown) {
    ADD_FAILURE() << "typed so far: " << Box().currentText().toStdString();
    frmMain->Command6.Tag = "demo";
  }
  EXPECT_TRUE(script.Done());
  EXPECT_EQ(MessageUserToPlot, "It Is In");
  EXPECT_EQ(LastPoint, 5);
  EXPECT_EQ(StateOf(document), before);
  EXPECT_FALSE(Prompt().isVisible());
  EXPECT_TRUE(Box().hasFocus());
  // The plot takes the focus with a click.
  ClickOnScreen(plot->mapToGlobal(QPoint(300, 300)));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !Box().hasFocus(); }));
  QTest::qWait(200);
  EXPECT_EQ(BoxColour("left"), kPale);
  EXPECT_EQ(Box().itemText(0).toStdString(), typed) << "it leads the history";
}

TEST_F(CalcStart, RunDemoIsClicked) {
  const int document = OpenSheet();
  FillPoints(document, "", 7);
  const UserState before = StateOf(document);
  run.Write("QuorbExcelProDemo.qbv", DataFileText("=0.01+LEN(\"Shown instead kmday\")+MAX(A2:C4)+MAX(D2:D4)",
                                                  "10000\t0\t0\t0\r\n0\t20000\t0\t1\r\n0\t0\t30000\t2\r\n"));
  // The real box that says why no sheet is shown.
  QtDialogs boxes;
  SetDialogs(&boxes);
  std::string told;
  Start();
  const Script script({
      {PromptIsUp(), [&] { ClickRunDemo(); }},
      {[] { return QApplication::activeModalWidget() != nullptr; },
       [&] {
         auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
         if (box == nullptr) return;
         QTest::qWait(200);
         Screen("no specification");
         told = box->windowTitle().toStdString() + ": " + box->text().toStdString();
         const QAbstractButton* ok = box->button(QMessageBox::Ok);
         ClickOnScreen(ok->mapToGlobal(ok->rect().center()));
       }},
  });
  const bool shown = WaitUntilShown(1, 15000);
  if (!shown) frmMain->Command6.Tag = "demo";
  EXPECT_TRUE(shown);
  EXPECT_TRUE(script.Done());
  EXPECT_THAT(told, testing::StartsWith("Information: Warning: an Excel sheet may already be open"));
  EXPECT_EQ(MessageUserToPlot, "Shown instead");
  EXPECT_EQ(StateOf(document), before);
  EXPECT_FALSE(Prompt().isVisible());
  Screen("demonstration");
}

}  // namespace
}  // namespace quorb
