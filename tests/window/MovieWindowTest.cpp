#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <filesystem>

#include "MovieWindow.h"
#include "PanelWindow.h"

namespace quorb {
namespace {

class Movie : public PanelWindow {
 protected:
  void OpenMovieWindow() {
    ClickTool("Toolbar1", 16);
    movie = WindowOf<MovieWindow>();
    ASSERT_NE(movie, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(movie));
  }
  void SaveInto(const std::string& name) {
    std::filesystem::create_directory(run.File(name));
    frmMain->Text6.text = run.File(name) + "/";
  }
  int Frames(const std::string& name) const {
    int frames = 0;
    for (const auto& entry : std::filesystem::directory_iterator(run.File(name)))
      frames += entry.path().extension() == ".bmp" && entry.file_size() > 1000 ? 1 : 0;
    return frames;
  }

  QPushButton& ButtonCalled(const QString& text) const {
    for (QPushButton* button : movie->findChildren<QPushButton*>()) {
      if (button->text() == text) return *button;
    }
    ADD_FAILURE() << "no button " << text.toStdString();
    return *movie->findChild<QPushButton*>();
  }
  QLineEdit& Period() const { return *movie->findChild<QLineEdit*>(); }
  QScrollBar& Bar(int index) const { return *movie->findChildren<QScrollBar*>().at(index); }
  void ClickIn(const QWidget& widget) const {
    QTest::mouseClick(movie->windowHandle(), Qt::LeftButton, {}, widget.mapTo(movie, widget.rect().center()));
  }
  void Press(Qt::Key key) const { QTest::keyClick(movie->windowHandle(), key); }
  void SetFramesByKeys(int frames) const {
    Bar(0).setFocus();
    Press(Qt::Key_Home);
    for (int i = 0; i < frames; ++i)
      Press(Qt::Key_Right);
    ASSERT_EQ(Bar(0).value(), frames);
  }
  void TypePeriod(const QString& text) const {
    ClickIn(Period());
    Period().selectAll();
    Press(Qt::Key_Delete);
    if (text.size() > 100) {
      QGuiApplication::clipboard()->setText(text);
      QTest::keyClick(movie->windowHandle(), Qt::Key_V, Qt::ControlModifier);
    }
    for (const QChar letter : text.left(100))
      if (text.size() <= 100) QTest::keyClick(movie->windowHandle(), letter.toLatin1());
  }

  MovieWindow* movie = nullptr;
};

TEST_F(Movie, TheToolBarButtonOpensTheWindowBesideThePlot) {
  OpenSmallPlot();
  OpenMovieWindow();
  EXPECT_EQ(movie->windowTitle(), "Movie sequence");
  EXPECT_FALSE(movie->isModal());
  EXPECT_EQ(Bar(0).value(), 900);
  EXPECT_EQ(Period().text(), "0.6");
  for (const QWidget* part : movie->findChildren<QWidget*>()) {
    if (!part->isVisible() || qobject_cast<const QLabel*>(part) == nullptr) continue;
    EXPECT_GE(part->width(), part->sizeHint().width());
  }
}

TEST_F(Movie, AMovieOfFiveFramesIsMadeAndEnded) {
  OpenSmallPlot();
  SaveInto("movie");
  OpenMovieWindow();
  SetFramesByKeys(5);
  TypePeriod("0.1");
  ClickIn(ButtonCalled("Start Video"));
  EXPECT_GE(USERFLAG.MovieFrameCount, 1);
  EXPECT_TRUE(QTest::qWaitFor([] { return USERFLAG.MovieFrameCount == 0; }, 30000));
  EXPECT_TRUE(movie->isVisible());
  ClickIn(ButtonCalled("End Video"));
  EXPECT_FALSE(movie->isVisible());
  QTest::qWait(500);
  EXPECT_EQ(Frames("movie"), 5);
}

// The writer saves one more frame, which is due at once, and stops.
TEST_F(Movie, ALongMovieIsEndedByItsButton) {
  OpenSmallPlot();
  SaveInto("ended");
  OpenMovieWindow();
  TypePeriod("0.1");
  ClickIn(ButtonCalled("Start Video"));
  EXPECT_TRUE(QTest::qWaitFor([this] { return Frames("ended") >= 2; }, 30000));
  ClickIn(ButtonCalled("End Video"));
  EXPECT_FALSE(movie->isVisible());
  EXPECT_TRUE(QTest::qWaitFor([] { return USERFLAG.MovieFrameCount == 0; }, 10000));
  EXPECT_LE(Frames("ended"), 5);
}

TEST_F(Movie, APausedMovieSavesNothingAndGoesOn) {
  OpenSmallPlot();
  SaveInto("paused");
  OpenMovieWindow();
  TypePeriod("0.1");
  ClickIn(ButtonCalled("Start Video"));
  EXPECT_TRUE(QTest::qWaitFor([this] { return Frames("paused") >= 2; }, 30000));
  ClickIn(ButtonCalled("Pause Video"));
  const int frames = Frames("paused");
  QTest::qWait(600);
  EXPECT_EQ(Frames("paused"), frames);
  ClickIn(ButtonCalled("Restart Video"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return Frames("paused") > frames; }, 30000));
  ClickIn(ButtonCalled("End Video"));
}

TEST_F(Movie, EscapeHidesTheWindowAndEnterPressesNothing) {
  OpenSmallPlot();
  OpenMovieWindow();
  Period().setFocus();
  Press(Qt::Key_Return);
  EXPECT_TRUE(movie->isVisible());
  EXPECT_EQ(USERFLAG.MovieFrameCount, 0);
  Press(Qt::Key_Escape);
  EXPECT_FALSE(movie->isVisible());
}

TEST_F(Movie, NoTextOfThePeriodDoesHarm) {
  OpenSmallPlot();
  SaveInto("bad periods");
  OpenMovieWindow();
  for (const QString& text :
       {QString("letters"), QString("1e300"), QString(), QString(10000, '9'), QString("-1")}) {
    TypePeriod(text);
    EXPECT_EQ(Period().text(), text);
    ClickIn(ButtonCalled("Start Video"));
    QTest::qWait(100);
    EXPECT_TRUE(movie->isVisible());
    USERFLAG.MovieFrameCount = 0;
  }
}

}  // namespace
}  // namespace quorb
