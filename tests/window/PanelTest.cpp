#include <QColorDialog>
#include <QPushButton>
#include <QTimer>

#include "PanelWindow.h"
#include "Settings.h"

namespace quorb {
namespace {

using testing::StartsWith;

class OptionPanel : public PanelWindow {
 protected:
  QWidget& Panel() const { return Find("Options"); }
  QPushButton& Close() const { return Find<QPushButton>("Command2"); }

  QPushButton& ColourButtonOf(const QString& what) const {
    for (QPushButton* button : Panel().findChildren<QPushButton*>()) {
      if (button->accessibleName().endsWith(": " + what)) return *button;
    }
    ADD_FAILURE() << "no button for " << what.toStdString();
    return Close();
  }
  std::string Stored(const std::string& key) const { return settings.Read("Use", key, "none"); }
};

// ---- opening and closing ----------------------------------------------------------------------------------

TEST_F(OptionPanel, TheToolBarButtonOpensThePanelAndItsCloseButtonReleasesIt) {
  OpenSmallPlot();
  EXPECT_FALSE(Panel().isVisible());
  OpenPanel();
  EXPECT_EQ(frmMain->ToolBoptions.Button(9).Value(), 1);
  ClickOn(Close());
  EXPECT_FALSE(Panel().isVisible());
  EXPECT_EQ(frmMain->ToolBoptions.Button(9).Value(), 0);
}

TEST_F(OptionPanel, TheMenuOpensThePanelInFrontOfThePlotAndGivesItTheKeyboard) {
  OpenSmallPlot();
  ShowMenus();
  QMenu* const menu = OpenMenu("mnuFile");
  ASSERT_NE(menu, nullptr);
  Choose(*menu, "mnuFOptions");
  EXPECT_TRUE(Panel().isVisible());
  EXPECT_EQ(Panel().visibleRegion().boundingRect(), Panel().rect());
  EXPECT_TRUE(QTest::qWaitFor([this] { return Panel().hasFocus(); }));
  Key(Qt::Key_Tab);
  EXPECT_TRUE(Find("Check1(0)").hasFocus());
  Key(Qt::Key_Space);
  EXPECT_EQ(frmMain->Check1[0].value, 1);
}

TEST_F(OptionPanel, EnterClosesThePanelAndThePlotGetsTheKeyboard) {
  OpenSmallPlot();
  frmMain->mnuFOptions.clicked();
  ClickOnCheck("Check1(4)");
  EXPECT_TRUE(Find("Check1(4)").hasFocus());
  glxCtl1->Camera().SetPosition(1, 2, 3);
  Key(Qt::Key_Return);
  EXPECT_FALSE(Panel().isVisible());
  EXPECT_TRUE(QTest::qWaitFor([this] { return plot->hasFocus(); }));
  ExpectEye(1, 2, 3);
  EXPECT_EQ(USERFLAG.NoLogoLabel, 1);
}

TEST_F(OptionPanel, APointerThatComesOverCloseClosesThePanel) {
  OpenSmallPlot();
  OpenPanel();
  MovePointerTo(Panel(), {100, 5});
  EXPECT_TRUE(Panel().isVisible());
  MovePointerTo(Close(), Close().rect().center());
  EXPECT_FALSE(Panel().isVisible());
}

TEST_F(OptionPanel, APointerThatComesOverCloseFromOutsideThePanelClosesItToo) {
  OpenSmallPlot();
  MovePointerTo(*plot, {700, 500});
  OpenPanel();
  MovePointerTo(Close(), Close().rect().center());
  EXPECT_FALSE(Panel().isVisible());
}

TEST_F(OptionPanel, AnOpeningPanelUnderAPointerThatRestsOnCloseStaysOpenUntilItComesBack) {
  OpenSmallPlot();
  OpenPanel();
  const QPoint place = Close().mapTo(window.get(), Close().rect().center());
  ClickOn(Close());
  MovePointerTo(*window, place);
  frmMain->mnuFOptions.clicked();
  QTest::qWait(100);
  EXPECT_TRUE(Panel().isVisible());
  MovePointerTo(*window, place + QPoint(3, 2));
  EXPECT_TRUE(Panel().isVisible());
  MovePointerTo(Panel(), {100, 5});
  EXPECT_TRUE(Panel().isVisible());
  MovePointerTo(*window, place);
  EXPECT_FALSE(Panel().isVisible());
}

TEST_F(OptionPanel, APanelThatShrinksUnderThePointerStaysOpen) {
  OpenSmallPlot();
  frmMain->mnuFOptions.clicked();
  const QPoint place = Close().mapTo(window.get(), Close().rect().center());
  ExtendPanel();
  MovePointerTo(*window, place);
  frmMain->Check2.value = 0;
  QTest::qWait(100);
  ASSERT_EQ(Close().mapTo(window.get(), Close().rect().center()), place);
  MovePointerTo(*window, place + QPoint(2, 2));
  EXPECT_TRUE(Panel().isVisible());
}

// ---- moving and extending ---------------------------------------------------------------------------------

TEST_F(OptionPanel, ADragOfItsBackgroundMovesThePanelWithThePointer) {
  OpenSmallPlot();
  OpenPanel();
  const QPoint before = Panel().pos();
  const QPoint grab(200, 8);
  ActAsUser("mousemove" + PlaceText(Panel(), grab) +
            "mousedown 1 mousemove_relative 40 30 mousemove_relative 60 20 mouseup 1");
  EXPECT_EQ(Panel().pos(), before + QPoint(100, 50));
  EXPECT_EQ(frmMain->Options.Left, (before.x() + 100) * kTwipsPerPixel);
  EXPECT_TRUE(Panel().isVisible());
}

TEST_F(OptionPanel, APanelThatIsDraggedOutOfTheWindowLeavesAStripInIt) {
  OpenSmallPlot();
  OpenPanel();
  ActAsUser("mousemove" + PlaceText(Panel(), {200, 8}) + "mousedown 1 mousemove 1279 899 mouseup 1");
  const QRect inside = Panel().geometry() & Panel().parentWidget()->rect();
  EXPECT_GE(inside.width(), 40);
  EXPECT_GE(inside.height(), 40);
}

TEST_F(OptionPanel, TheExtendedPanelShowsTheColoursAndTheKeywordAndThePlainOneHidesThem) {
  OpenSmallPlot();
  OpenPanel();
  const int plain = Panel().height();
  ExtendPanel();
  // 1400 + 8295 twips on a screen of 900 pixels.
  EXPECT_EQ(Panel().height(), 646);
  for (const char* name : {"Text5(0)", "Text5(17)", "Label1(4)", "Label1(10)", "Text9", "Label1(13)"})
    EXPECT_TRUE(Find(name).isVisible()) << name;
  ClickOnCheck("Check2");
  EXPECT_EQ(Panel().height(), plain);
  EXPECT_FALSE(Find("Text5(0)").isVisible());
  EXPECT_FALSE(Find("Text9").isVisible());
}

TEST_F(OptionPanel, InALowWindowThePanelMovesUpAndItsInsideIsScrolled) {
  OpenSmallPlot();
  for (const int height : {690, 400}) {
    // A window of less than 681 pixels would grow with the panel.
    frmMain->Options.visible = false;
    frmMain->Check2.value = 0;
    window->resize(1000, height);
    ASSERT_TRUE(QTest::qWaitFor([&] { return window->height() == height && plot->width() == 1000; }));
    frmMain->Options.Height = 646 * kTwipsPerPixel;
    frmMain->mnuFOptions.clicked();
    QTest::qWait(50);
    EXPECT_TRUE(Panel().parentWidget()->rect().contains(Panel().geometry())) << height;
    EXPECT_EQ(Close().visibleRegion(), QRegion(Close().rect())) << height;
  }
  // The keyboard brings a field into sight.
  Find("Text7").setFocus();
  Key(Qt::Key_Tab);
  EXPECT_TRUE(Find("Text8").hasFocus());
  EXPECT_EQ(Find("Text8").visibleRegion(), QRegion(Find("Text8").rect()));
}

// ---- colours ----------------------------------------------------------------------------------------------

QColor MiddleOf(QWidget& widget) {
  const QImage image = widget.grab().toImage();
  return image.pixelColor(image.width() / 2, image.height() / 2);
}

TEST_F(OptionPanel, AColourThatIsTypedIsShownTakenAndKept) {
  OpenSmallPlot();
  OpenPanel();
  ExtendPanel();
  TypeInto("Text5(15)", "200");
  TypeInto("Text5(16)", "300");
  TypeInto("Text5(17)", "7");
  EXPECT_EQ(MiddleOf(ColourButtonOf("BackGround")), QColor(200, 255, 7));
  ClickOn(Find("Command1"));
  EXPECT_EQ(TextOf("Text5(16)"), "255");
  EXPECT_EQ(USERFLAG.ColourBackground.red, 200);
  EXPECT_EQ(USERFLAG.ColourBackground.green, 255);
  EXPECT_EQ(USERFLAG.ColourBackground.blue, 7);
  EXPECT_EQ(Stored(SlotKey(26)), "200");
  EXPECT_TRUE(Panel().isVisible());
  const QPoint besideThePlot(plot->width() - 10, plot->height() / 2);
  // A colour is a part of 256.
  EXPECT_TRUE(QTest::qWaitFor([&] {
    return plot->grabFramebuffer().pixelColor(besideThePlot) == QColor(199, 254, 7);
  })) << plot->grabFramebuffer().pixelColor(besideThePlot).name().toStdString();
}

TEST_F(OptionPanel, AColourIsChosenByItsButton) {
  OpenSmallPlot();
  OpenPanel();
  ExtendPanel();
  QTimer user;
  user.setInterval(50);
  QObject::connect(&user, &QTimer::timeout, [] {
    auto* const dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    dialog->setCurrentColor(QColor(1, 22, 133));
    QTest::keyClick(dialog, Qt::Key_Return);
  });
  user.start();
  ClickOn(ColourButtonOf("Axis labels"));
  EXPECT_EQ(TextOf("Text5(0)"), "1");
  EXPECT_EQ(TextOf("Text5(1)"), "22");
  EXPECT_EQ(TextOf("Text5(2)"), "133");
}

TEST_F(OptionPanel, WhiteIsShownAndTheColourFromBeforeComesBack) {
  OpenSmallPlot();
  OpenPanel();
  ExtendPanel();
  const std::string before = TextOf("Text5(15)");
  ClickOnCheck("Check7");
  EXPECT_EQ(TextOf("Text5(15)"), "255");
  EXPECT_EQ(MiddleOf(ColourButtonOf("BackGround")), QColor(Qt::white));
  ClickOnCheck("Check7");
  EXPECT_EQ(TextOf("Text5(15)"), before);
}

// ---- texts ------------------------------------------------------------------------------------------------

TEST_F(OptionPanel, FactoryAndSaveAreReachedByTheKeyboard) {
  OpenSmallPlot();
  OpenPanel();
  TypeInto("Text4(0)", "4");
  Find("Command1").setFocus();
  Key(Qt::Key_Space);
  EXPECT_EQ(USERFLAG.ThicknessLinePlot, 4);
  EXPECT_EQ(Stored(SlotKey(7)), "4");
  Key(Qt::Key_Tab);
  EXPECT_TRUE(Find("Command3").hasFocus());
  Key(Qt::Key_Space);
  EXPECT_NE(TextOf("Text4(0)"), "4");
  EXPECT_EQ(Stored(SlotKey(7)), "4") << "nothing is stored";
}

TEST_F(OptionPanel, AKeywordIsTakenInUpperCaseWithoutBlanks) {
  OpenSmallPlot();
  OpenPanel();
  ExtendPanel();
  TypeInto("Text9", " max x");
  EXPECT_EQ(TextOf("Text9"), "MAXX");  // each blank is gone before the next letter comes
  QLineEdit& field = Find<QLineEdit>("Text9");
  field.setCursorPosition(1);
  QTest::keyClick(window->windowHandle(), 'b');
  EXPECT_EQ(TextOf("Text9"), "MBAXX");
  EXPECT_EQ(field.cursorPosition(), 2) << "the caret stays behind what was typed";
}

TEST_F(OptionPanel, TheSatelliteShowsWhatBelongsToItAndItsShapeIsChosenFromTheList) {
  OpenSmallPlot();
  OpenPanel();
  EXPECT_FALSE(Find("HScroll3").isVisible());
  ClickOnCheck("Check3");
  for (const char* name : {"HScroll3", "Label1(12)", "Check4", "Check6"})
    EXPECT_TRUE(Find(name).isVisible()) << name;
  auto& shapes = Find<QComboBox>("Combo2");
  EXPECT_EQ(shapes.count(), 7);
  shapes.setFocus();
  QTest::keyClick(window->windowHandle(), Qt::Key_L);  // "LEO Spot"
  EXPECT_EQ(USERFLAG.SatelliteShape, 1);
  EXPECT_EQ(shapes.currentText(), "LEO Spot");
}

/// Texts that no field awaits.
const QString kBadTexts[] = {"letters", "-1e300", "1e300", "", QString(10000, '9')};

TEST_F(OptionPanel, NoTextOfAColourOrAFactorDoesHarm) {
  OpenSmallPlot();
  OpenPanel();
  ExtendPanel();
  frmMain->Text4[4].visible = true;
  for (const QString& text : kBadTexts) {
    for (const char* field :
         {"Text5(0)", "Text5(17)", "Text4(0)", "Text4(1)", "Text4(2)", "Text4(3)", "Text4(4)"})
      TypeInto(field, text);
    ClickOn(Find("Command1"));
    QTest::qWait(50);
    const std::string shown = TextOf("Text5(17)");
    const bool tooLarge = text == "1e300";  // what no number can hold reads as 0
    EXPECT_EQ(shown, tooLarge ? "255" : text.startsWith('-') ? "0" : text.toStdString());
    EXPECT_EQ(USERFLAG.ColourBackground.blue, tooLarge ? 255 : 0);
    EXPECT_EQ(TextOf("Text4(3)"), text.toStdString());
    EXPECT_EQ(TextOf("Text4(1)"), TextOf("Text4(4)"));
    EXPECT_TRUE(Panel().isVisible());
  }
}

TEST_F(OptionPanel, NoTextOfANameDoesHarm) {
  OpenSmallPlot();
  OpenPanel();
  ExtendPanel();
  for (const QString& text : kBadTexts) {
    for (const char* field : {"Text6", "Text7", "Text8", "Text9"})
      TypeInto(field, text);
    ClickOn(Find("Command1"));
    QTest::qWait(50);
    EXPECT_EQ(TextOf("Text6"), text.toStdString());
    EXPECT_EQ(Stored("SetDirBMP"), text.toStdString());
    EXPECT_EQ(TextOf("Text7"), text.toStdString());
    EXPECT_EQ(TextOf("Text9"), text.toUpper().toStdString());
  }
}

/// Counts the boxes instead of showing them.
class CountedBoxes : public QtDialogs {
 public:
  BoxAnswer MessageBox(const std::string& prompt, const std::string&, int) override {
    prompts.push_back(prompt);
    return BoxAnswer::ok;
  }
  std::vector<std::string> prompts;
};

TEST_F(OptionPanel, ABadThrusterListIsToldAndStaysOpen) {
  OpenSmallPlot();
  CountedBoxes boxes;
  SetDialogs(&boxes);
  OpenPanel();
  EXPECT_FALSE(Find("Text13").isVisible());
  for (const QString& text : kBadTexts) {
    if (frmMain->Check8.value == 0) ClickOnCheck("Check8");
    EXPECT_TRUE(Find("Text13").isVisible());
    TypeInto("Text13", text);
    ClickOnCheck("Check8");
    EXPECT_EQ(Find("Text13").isVisible(), boxes.prompts.size() == 1) << text.left(10).toStdString();
    for (const std::string& prompt : boxes.prompts)
      EXPECT_THAT(prompt, StartsWith(" Wrong data count."));
    boxes.prompts.clear();
  }
  SetDialogs(&dialogs);
}

TEST_F(OptionPanel, AnImageDirectoryThatIsAFileSavesNothingAndDoesNoHarm) {
  OpenSmallPlot();
  CountedBoxes boxes;
  SetDialogs(&boxes);
  run.Write("a file", "not a directory");
  OpenPanel();
  TypeInto("Text6", QString::fromStdString(run.File("a file")));
  ClickOn(Close());
  ClickTool("Toolbar1", 15);
  QTest::qWait(200);
  EXPECT_EQ(ContentsOfFile(run.File("a file")), "not a directory");
  EXPECT_TRUE(window->isVisible());
  SetDialogs(&dialogs);
}

}  // namespace
}  // namespace quorb
