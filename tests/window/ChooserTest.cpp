#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>
#include <filesystem>

#include "ChooserWindow.h"
#include "PanelWindow.h"
#include "RunState.h"

namespace quorb {
namespace {

class Chooser : public PanelWindow {
 protected:
  /// The plot, and a directory with two other ones and a text.
  void OpenPlotWithOthers() {
    OpenSmallPlot();
    std::filesystem::create_directories(run.File("place/inside"));
    const std::string rows = "1\t0\t0\r\n2\t0\t0\r\n3\t5\t0\r\n";
    run.Write("place/first.qbv", DataFileText("=LEN(\"First\")+MAX(A2:C4)", rows));
    run.Write("place/second.qbv", DataFileText("=LEN(\"Second\")+MAX(A2:C4)", rows));
    run.Write("place/inside/third.qbv", DataFileText("=LEN(\"Third\")+MAX(A2:C4)", rows));
    run.Write("place/notes.txt", "notes");
    settings.Write("OpenQBV", "Dir01.00", run.File("place/"));
    chooser = WindowOf<ChooserWindow>();
  }

  /// Opens the chooser from the menu; `user` acts once it is shown. Returns when it is closed again.
  void OpenChooser(const std::function<void()>& user) {
    ShowMenus();
    bool acted = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
      if (!chooser->isVisible()) return;
      timer.stop();
      // There is no window manager that gives it the keyboard.
      chooser->activateWindow();
      EXPECT_TRUE(QTest::qWaitForWindowActive(chooser));
      acted = true;
      user();
      QTest::qWait(100);
      // One that is still open would hold the test up for ever.
      EXPECT_FALSE(chooser->isVisible());
      if (chooser->isVisible()) chooser->close();
    });
    timer.start(50);
    QMenu* const menu = OpenMenu("mnuFile");
    ASSERT_NE(menu, nullptr);
    Choose(*menu, "mnuFOpen");
    EXPECT_TRUE(acted);
    EXPECT_FALSE(chooser->isVisible());
  }

  QListWidget& Files() const { return *chooser->findChild<QListWidget*>(); }
  QTreeWidget& Tree() const { return *chooser->findChild<QTreeWidget*>(); }
  QStringList FileNames() const {
    QStringList names;
    for (int i = 0; i < Files().count(); ++i)
      names.append(Files().item(i)->text());
    return names;
  }
  QTreeWidgetItem& Directory(const QString& name) const {
    const auto found = Tree().findItems(name, Qt::MatchExactly | Qt::MatchRecursive);
    if (found.size() != 1) ADD_FAILURE() << name.toStdString() << ": " << found.size();
    return *found.value(0, Tree().topLevelItem(0));
  }
  void Press(Qt::Key key) const {
    QTest::keyClick(chooser->windowHandle(), key);
    QTest::qWait(20);
  }
  void ClickAt(const QWidget& widget, const QPoint& place) const {
    QTest::mouseClick(chooser->windowHandle(), Qt::LeftButton, {}, widget.mapTo(chooser, place));
    QTest::qWait(20);
  }
  void DoubleClickAt(const QWidget& widget, const QPoint& place) const {
    QTest::mouseClick(chooser->windowHandle(), Qt::LeftButton, {}, widget.mapTo(chooser, place));
    QTest::mouseDClick(chooser->windowHandle(), Qt::LeftButton, {}, widget.mapTo(chooser, place));
    QTest::qWait(20);
  }
  /// With the display's own mouse, so that the window has time for what the first click asks for.
  static void DoubleClickSlowly(const QWidget& widget, const QPoint& place) {
    ActAsUser("mousemove" + PlaceText(widget, place) + "click --repeat 2 --delay 100 1");
  }
  QPoint PlaceOfDirectory(const QString& name) const {
    return Tree().visualItemRect(&Directory(name)).center();
  }
  void ClickDirectory(const QString& name) const { ClickAt(*Tree().viewport(), PlaceOfDirectory(name)); }
  QPoint PlaceOfFile(int row) const { return Files().visualItemRect(Files().item(row)).center(); }
  QPushButton& ButtonCalled(const QString& text) const {
    for (QPushButton* button : chooser->findChildren<QPushButton*>()) {
      if (button->text() == text) return *button;
    }
    ADD_FAILURE() << "no button " << text.toStdString();
    return *chooser->findChild<QPushButton*>();
  }

  ChooserWindow* chooser = nullptr;
};

TEST_F(Chooser, TheKeyboardOpensTheSecondFile) {
  OpenPlotWithOthers();
  OpenChooser([this] {
    EXPECT_EQ(chooser->windowTitle(), "Explorer tree");
    EXPECT_EQ(FileNames(), QStringList({"first.qbv", "second.qbv"}));
    EXPECT_TRUE(Files().hasFocus());
    Files().setCurrentRow(0);
    Press(Qt::Key_Down);
    EXPECT_EQ(frmDialog().Filename.text.Get(), run.File("place/second.qbv"));
    Press(Qt::Key_Return);
  });
  EXPECT_EQ(CommandFileName, run.File("place/second.qbv"));
  EXPECT_EQ(LastLoad().rows, 3);
}

TEST_F(Chooser, TheMouseGoesToADirectoryAndOpensAFileByADoubleClick) {
  OpenPlotWithOthers();
  OpenChooser([this] {
    ClickDirectory("inside");
    EXPECT_EQ(FileNames(), QStringList({"third.qbv"}));
    DoubleClickAt(*Files().viewport(), PlaceOfFile(0));
  });
  EXPECT_EQ(CommandFileName, run.File("place/inside/third.qbv"));
  EXPECT_EQ(LastLoad().rows, 3);
}

TEST_F(Chooser, ADoubleClickOpensAFileThatWasNotSelected) {
  OpenPlotWithOthers();
  OpenChooser([this] {
    EXPECT_EQ(Files().currentRow(), 0);
    DoubleClickSlowly(*Files().viewport(), PlaceOfFile(1));
  });
  EXPECT_EQ(CommandFileName, run.File("place/second.qbv"));
  EXPECT_EQ(LastLoad().rows, 3);
}

// Behind the first click the directory stands a row higher, and the one in it under the pointer.
TEST_F(Chooser, ADoubleClickOnADirectoryGoesThereAndNoDeeper) {
  OpenPlotWithOthers();
  std::filesystem::create_directory(run.File("place/another"));
  std::filesystem::create_directory(run.File("place/inside/deeper"));
  OpenChooser([this] {
    const QPoint place = PlaceOfDirectory("inside");
    DoubleClickSlowly(*Tree().viewport(), place);
    EXPECT_EQ(Tree().itemAt(place), &Directory("deeper"));
    EXPECT_EQ(Tree().currentItem(), &Directory("inside"));
    EXPECT_EQ(FileNames(), QStringList({"third.qbv"}));
    // A click of its own goes on.
    ClickDirectory("deeper");
    EXPECT_EQ(FileNames(), QStringList());
    Press(Qt::Key_Escape);
  });
}

TEST_F(Chooser, ArrowsMarkADirectoryAndEnterGoesThere) {
  OpenPlotWithOthers();
  std::filesystem::create_directory(run.File("place/another"));
  OpenChooser([this] {
    Tree().setFocus();
    Press(Qt::Key_Down);
    EXPECT_EQ(Tree().currentItem()->text(0), "another");
    Press(Qt::Key_Down);
    EXPECT_EQ(Tree().currentItem()->text(0), "inside");
    EXPECT_EQ(FileNames(), QStringList({"first.qbv", "second.qbv"})) << "nothing is chosen yet";
    Press(Qt::Key_Return);
    EXPECT_EQ(FileNames(), QStringList({"third.qbv"}));
    EXPECT_TRUE(chooser->isVisible());
    Press(Qt::Key_Up);
    Press(Qt::Key_Space);
    EXPECT_EQ(FileNames(), QStringList({"first.qbv", "second.qbv"})) << "back to the directory above";
    Press(Qt::Key_Escape);
  });
}

TEST_F(Chooser, EscapeCancelAndTheCloseButtonLoadNothing) {
  OpenPlotWithOthers();
  const std::string before = CommandFileName;
  const auto rows = LastLoad().rows;
  OpenChooser([this] { Press(Qt::Key_Escape); });
  OpenChooser([this] { ClickAt(ButtonCalled("Cancel"), ButtonCalled("Cancel").rect().center()); });
  OpenChooser([this] { chooser->close(); });
  EXPECT_EQ(frmDialog().form.Tag, "Cancel");
  EXPECT_EQ(CommandFileName, before);
  EXPECT_EQ(LastLoad().rows, rows);
}

TEST_F(Chooser, ADirectoryThatVanishesDoesNoHarm) {
  OpenPlotWithOthers();
  const std::string before = CommandFileName;
  OpenChooser([this] {
    std::filesystem::remove_all(run.File("place/inside"));
    ClickDirectory("inside");
    EXPECT_EQ(frmDialog().Filename.text.Get(), "");
    std::filesystem::remove_all(run.File("place"));
    Files().setCurrentRow(1);
    QTest::qWait(20);
    EXPECT_EQ(frmDialog().Filename.text.Get(), "");
    Press(Qt::Key_Escape);
  });
  EXPECT_EQ(CommandFileName, before);
  // It opens again on the nearest directory that is left.
  OpenChooser([this] {
    EXPECT_EQ(FileNames(), QStringList({"small plot.qbv"}));
    Press(Qt::Key_Escape);
  });
}

TEST_F(Chooser, NoTextOfAPatternOrANameDoesHarm) {
  OpenPlotWithOthers();
  const std::string before = CommandFileName;
  OpenChooser([this] {
    for (const QString& text :
         {QString("letters"), QString("1e300"), QString(), QString(10000, '*'), QString("*.*")}) {
      for (QLineEdit* field : chooser->findChildren<QLineEdit*>()) {
        field->setFocus();
        field->selectAll();
        QGuiApplication::clipboard()->setText(text.isEmpty() ? QString(" ") : text);
        QTest::keyClick(chooser->windowHandle(), Qt::Key_V, Qt::ControlModifier);
        QTest::qWait(20);
      }
    }
    EXPECT_EQ(FileNames(), QStringList({"first.qbv", "notes.txt", "second.qbv"}));
    Press(Qt::Key_Escape);
  });
  EXPECT_EQ(CommandFileName, before);
}

TEST_F(Chooser, EveryPartIsReadableAndHasAName) {
  OpenPlotWithOthers();
  OpenChooser([this] {
    for (const QLabel* label : chooser->findChildren<QLabel*>()) {
      if (!label->isVisible() || label->buddy() == nullptr) continue;
      EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
      EXPECT_TRUE(label->buddy()->isVisible());
    }
    // One drive is no choice.
    EXPECT_EQ(chooser->findChild<QComboBox*>()->isVisible(), frmDialog().Lecteur1.items.Get().size() > 1);
    Press(Qt::Key_Escape);
  });
}

}  // namespace
}  // namespace quorb
