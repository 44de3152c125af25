#include <filesystem>
#include <fstream>
#include <string>

#include "Movie.h"
#include "ScriptedDayClock.h"
#include "TemporaryDirectory.h"
#include "WindowFixture.h"

namespace quorb {
namespace {

/// The movie window, open on a machine with the point as its decimal mark, at ten in the morning.
class VideoWindowTest : public WindowFixture {
 protected:
  VideoWindowTest() {
    MoviePrefix.clear();
    clock.seconds = 36000;
    ShowVideoWindow();
  }

  static void TypePeriod(const std::string& text) { frmVideo().Text1.text = text; }

  /// A tick a second until the movie has ended, or a minute is over.
  void RunMovie() {
    constexpr int kTicks = 60;
    for (int tick = 0; tick < kTicks && USERFLAG.MovieFrameCount > 0; ++tick) {
      clock.seconds += 1;
      TheScene->MovieSaveAs();
    }
  }

  /// The main window with a view of 4 x 2 pixels, whose frames go into the directory as "orbit1.bmp" onward.
  void ShowSmallView() {
    Load();
    MovieDirectory = directory.File("");
    MoviePrefix = "orbit";
    SetView(4, 2, [](int, int) { return std::array<std::uint8_t, 3>{1, 2, 3}; });
    host.width = 4;
    host.height = 2;
  }

  /// Ticks of the movie, a second apart.
  void Tick(int times) {
    for (int tick = 0; tick < times; ++tick) {
      clock.seconds += 1;
      TheScene->MovieSaveAs();
    }
  }

  TemporaryDirectory directory;
  ScriptedDayClock clock;
  VideoWindow& video = frmVideo();
};

// ---- controls -------------------------------------------------------------------------------------------

TEST_F(VideoWindowTest, EachControlHasItsDesignedCaptionBoundsAndValue) {
  ForgetVideoWindow();
  const VideoWindow& designed = frmVideo();
  EXPECT_EQ(designed.form.caption.Get(), "Movie sequence");
  EXPECT_FALSE(designed.form.visible);
  EXPECT_EQ(designed.HScroll1.min, 0);
  EXPECT_EQ(designed.HScroll1.max, 1023);
  EXPECT_EQ(designed.HScroll1.value, 900);
  EXPECT_EQ(designed.Label2.caption.Get(), "Number of frames");
  EXPECT_EQ(designed.HScroll2.min, 0);
  EXPECT_EQ(designed.HScroll2.max, 16);
  EXPECT_EQ(designed.HScroll2.largeChange, 1);
  EXPECT_EQ(designed.HScroll2.value, 5);
  EXPECT_EQ(designed.Label1.caption.Get(), "Period ");
  EXPECT_EQ(designed.Check1.caption, "simulation model time");
  EXPECT_EQ(designed.Check1.value, 0);
  EXPECT_EQ(designed.Check1.toolTip.Get(),
            "check for making video wrt the plot which can be quite high, not wrt the computer timer");
  EXPECT_EQ(designed.Command1.caption.Get(), "Start/Restart Video");
  EXPECT_EQ(designed.Command1.Tag, "");
  EXPECT_EQ(designed.Command2.caption.Get(), "Pause Video");
  EXPECT_EQ(designed.Command3.caption.Get(), "End Video");
}

TEST_F(VideoWindowTest, OpeningTheWindowTellsWhatAMovieWillBe) {
  EXPECT_TRUE(video.form.visible);
  EXPECT_EQ(video.Command1.caption.Get(), "Start Video");
  EXPECT_EQ(USERFLAG.MovieFrames, 900);
  EXPECT_EQ(USERFLAG.MovieFrameTime, 0.6);
  EXPECT_EQ(video.Text1.text.Get(), "0.6");
  EXPECT_EQ(video.Text3.text.Get(), "-1 / 900 Frames ");
  EXPECT_EQ(video.Text2.text.Get(), ".6 seconds between Frames");
  EXPECT_EQ(
      video.Text3.toolTip.Get(),
      "Before or During a movie process, use this scrollbar to increase the number of Frames (default is "
      "20)");
  EXPECT_EQ(video.Text2.toolTip.Get(),
            "Before or During a movie process, use this scrollbar to change the rate of the Frames (in "
            "seconds), default is 1 s");
}

// ---- frames and period ----------------------------------------------------------------------------------

TEST_F(VideoWindowTest, FramesAtZeroGivesTwenty) {
  video.HScroll1.value = 0;
  EXPECT_EQ(USERFLAG.MovieFrames, 20);
  EXPECT_EQ(video.Text3.text.Get(), "-1 / 20 Frames ");
  video.Command1.clicked();
  EXPECT_EQ(USERFLAG.MovieFrames, 20);
}

TEST_F(VideoWindowTest, TheBarTakesMoreFramesThanNineHundred) {
  video.HScroll1.value = 1023;
  EXPECT_EQ(USERFLAG.MovieFrames, 1023);
  video.HScroll1.value = 1024;
  EXPECT_EQ(USERFLAG.MovieFrames, 1023);
}

TEST_F(VideoWindowTest, ThePeriodIsInTenthsOfASecondOfTheClock) {
  video.HScroll2.value = 0;
  EXPECT_EQ(USERFLAG.MovieFrameTime, 0.1);
  video.HScroll2.value = 16;
  EXPECT_EQ(USERFLAG.MovieFrameTime, 1.7);
  EXPECT_EQ(video.Text1.text.Get(), "1.7");
  EXPECT_EQ(video.Text2.text.Get(), "1.7 seconds between Frames");
}

TEST_F(VideoWindowTest, InTheTimeOfTheDataThePeriodIsInStepsOfFourSeconds) {
  video.Check1.value = 1;
  EXPECT_EQ(USERFLAG.MovieRealTime, 1);
  EXPECT_EQ(video.HScroll2.max, 21600);
  EXPECT_EQ(video.HScroll2.largeChange, 15);
  EXPECT_EQ(USERFLAG.MovieFrameTime, 20) << "the bar stayed at 5";
  video.HScroll2.value = 21600;
  EXPECT_EQ(USERFLAG.MovieFrameTime, 86400);
  EXPECT_EQ(video.Text1.text.Get(), "86400");
  EXPECT_EQ(video.Text2.text.Get(), "86400. seconds between Frames");
}

TEST_F(VideoWindowTest, BackInTheTimeOfTheClockTheBarIsShortAgain) {
  video.Check1.value = 1;
  video.HScroll2.value = 300;
  int shown = 0;
  video.HScroll2.refresh = [&] { ++shown; };
  video.Check1.value = 0;
  EXPECT_EQ(USERFLAG.MovieRealTime, 0);
  EXPECT_EQ(video.HScroll2.max, 16);
  EXPECT_EQ(video.HScroll2.largeChange, 1);
  EXPECT_EQ(video.HScroll2.value, 16);
  EXPECT_EQ(USERFLAG.MovieFrameTime, 1.7);
  EXPECT_GE(shown, 1);
}

TEST_F(VideoWindowTest, EachActivationTakesTheBarsAgain) {
  TypePeriod("7");
  USERFLAG.MovieFrames = 3;
  USERFLAG.MovieFrameTime = 7;
  WindowComesForward(ProgramWindow::movie);
  EXPECT_EQ(USERFLAG.MovieFrames, 3) << "a message box in between is no activation";
  WindowComesForward(ProgramWindow::main);
  WindowComesForward(ProgramWindow::movie);
  EXPECT_EQ(USERFLAG.MovieFrames, 900);
  EXPECT_EQ(USERFLAG.MovieFrameTime, 0.6);
  EXPECT_EQ(video.Text1.text.Get(), "0.6");
}

// ---- start ----------------------------------------------------------------------------------------------

TEST_F(VideoWindowTest, StartBeginsAtTheFirstFrameAtOnce) {
  USERFLAG.MovieNextTime = 99;
  video.HScroll1.value = 5;
  video.Command1.clicked();
  EXPECT_EQ(USERFLAG.MovieFrameCount, 1);
  EXPECT_EQ(USERFLAG.MovieFrames, 5);
  EXPECT_EQ(USERFLAG.MovieNextTime, 0);
  EXPECT_EQ(USERFLAG.MovieRealTime, 0);
  EXPECT_EQ(USERFLAG.MovieFrameTime, 0.6);
  EXPECT_EQ(video.Text3.text.Get(), " / 5 Frames ");
  EXPECT_TRUE(video.form.visible);
}

TEST_F(VideoWindowTest, APeriodTypedJustBeforeTheStartIsUsed) {
  TypePeriod("2.5");
  video.Command1.clicked();
  EXPECT_EQ(USERFLAG.MovieFrameTime, 2.5);
  EXPECT_EQ(video.Text2.text.Get(), "2.5 seconds between Frames");
}

TEST_F(VideoWindowTest, ATypedPeriodHoldsOnlyUntilTheNextUpdate) {
  TypePeriod("2.5");
  video.HScroll1.value = 30;
  EXPECT_EQ(video.Text1.text.Get(), "0.6");
  video.Command1.clicked();
  EXPECT_EQ(USERFLAG.MovieFrameTime, 0.6);
}

TEST_F(VideoWindowTest, ATypedPeriodIsInTheTimeOfTheDataWhenThatIsChecked) {
  video.Check1.value = 1;
  TypePeriod("3600");
  video.Command1.clicked();
  EXPECT_EQ(USERFLAG.MovieRealTime, 1);
  EXPECT_EQ(USERFLAG.MovieFrameTime, 3600);
}

TEST_F(VideoWindowTest, AnyTextIsTakenForAPeriod) {
  const std::pair<std::string, double> texts[] = {
      {"", 0}, {"soon", 0}, {"1e300", 1e300}, {std::string(10000, '9'), 0}, {std::string(10000, 'x'), 0}};
  for (const auto& [text, period] : texts) {
    TypePeriod(text);
    video.Command1.clicked();
    EXPECT_EQ(USERFLAG.MovieFrameTime, period) << text.substr(0, 20);
  }
}

TEST_F(VideoWindowTest, StartTakesTheKindOfTimeFromItsBox) {
  USERFLAG.MovieRealTime = 1;
  video.Command1.clicked();
  EXPECT_EQ(USERFLAG.MovieRealTime, 0);
  video.Check1.value = 1;
  USERFLAG.MovieRealTime = 0;
  video.Command1.clicked();
  EXPECT_EQ(USERFLAG.MovieRealTime, 1);
}

// ---- pause, restart, end --------------------------------------------------------------------------------

TEST_F(VideoWindowTest, ThePauseDoesNotChangeTheCounters) {
  video.HScroll1.value = 40;
  video.Command1.clicked();
  USERFLAG.MovieFrameCount = 8;
  video.Command2.clicked();
  EXPECT_EQ(USERFLAG.MovieFrameCount, 8);
  EXPECT_EQ(USERFLAG.MovieFrames, 40);
  EXPECT_EQ(USERFLAG.MovieNextTime, 136000);
  EXPECT_EQ(video.Command1.Tag, "ReStart");
  EXPECT_EQ(video.Command1.caption.Get(), "Restart Video");
  EXPECT_EQ(video.Text3.text.Get(), "7 / 40 Frames ");
}

TEST_F(VideoWindowTest, TheRestartGoesOnFromTheClock) {
  video.Command1.clicked();
  USERFLAG.MovieFrameCount = 8;
  video.Command2.clicked();
  clock.seconds = 36100;
  video.Command1.clicked();
  EXPECT_EQ(USERFLAG.MovieNextTime, 36100);
  EXPECT_EQ(USERFLAG.MovieFrameCount, 8);
  EXPECT_EQ(video.Command1.Tag, "");
  EXPECT_EQ(video.Command1.caption.Get(), "Start Video");
  video.Command1.clicked();
  EXPECT_EQ(USERFLAG.MovieFrameCount, 1) << "without a pause it is a start";
}

TEST_F(VideoWindowTest, InTheTimeOfTheDataTheRestartGoesOnFromThere) {
  video.Check1.value = 1;
  video.Command1.clicked();
  video.Command2.clicked();
  USERFLAG.MovieDataTime = 2.5;
  video.Command1.clicked();
  EXPECT_EQ(USERFLAG.MovieNextTime, 216000);
}

TEST_F(VideoWindowTest, TheEndStopsTheWriterAndHidesTheWindow) {
  video.Command1.clicked();
  USERFLAG.MovieFrameCount = 8;
  video.Command3.clicked();
  EXPECT_EQ(USERFLAG.MovieFrames, 8);
  EXPECT_EQ(video.Text3.text.Get(), "7 / 8 Frames ");
  EXPECT_FALSE(video.form.visible);
}

TEST_F(VideoWindowTest, TheEndBehindAPauseIsAnEnd) {
  ShowSmallView();
  video.Command1.clicked();
  Tick(2);
  video.Command2.clicked();
  video.Command3.clicked();
  EXPECT_EQ(USERFLAG.MovieFrames, 3);
  EXPECT_EQ(USERFLAG.MovieFrameCount, 3);
  EXPECT_EQ(video.Text3.text.Get(), "2 / 3 Frames ");
  Tick(2);
  EXPECT_EQ(directory.EntryCount(), 3) << "one more frame, without waiting";
  EXPECT_EQ(USERFLAG.MovieFrameCount, 0);
  EXPECT_EQ(USERFLAG.MovieNextTime, 0);
  RunMovie();
  EXPECT_EQ(directory.EntryCount(), 3);

  ShowVideoWindow();
  EXPECT_EQ(video.Command1.caption.Get(), "Start Video");
  MoviePrefix = "later";
  video.Command1.clicked();
  EXPECT_EQ(USERFLAG.MovieFrameCount, 1);
  Tick(1);
  EXPECT_TRUE(std::filesystem::exists(directory.File("later1.bmp")));
}

TEST_F(VideoWindowTest, TheEndOfAMovieWhoseDataStandStillIsAnEnd) {
  ShowSmallView();
  video.Check1.value = 1;
  video.Command1.clicked();
  USERFLAG.MovieDataTime = 2.5;  // the last row
  Tick(1);
  Tick(5);
  ASSERT_EQ(directory.EntryCount(), 1) << "no other one comes due";
  video.Command3.clicked();
  EXPECT_EQ(USERFLAG.MovieFrames, 2);
  Tick(2);
  EXPECT_EQ(directory.EntryCount(), 2);
  EXPECT_EQ(USERFLAG.MovieFrameCount, 0);
  USERFLAG.MovieDataTime = 5;
  RunMovie();
  EXPECT_EQ(directory.EntryCount(), 2) << "none more when the plot is drawn anew";

  ShowVideoWindow();
  MoviePrefix = "later";
  video.Command1.clicked();
  Tick(1);
  EXPECT_TRUE(std::filesystem::exists(directory.File("later1.bmp")));
}

TEST_F(VideoWindowTest, AMovieThatWasStoppedBehindItsPauseStartsAnew) {
  video.Command1.clicked();
  video.Command2.clicked();
  USERFLAG.MovieFrameCount = 0;
  USERFLAG.MovieNextTime = 0;
  clock.seconds = 36100;
  video.Command1.clicked();
  EXPECT_EQ(USERFLAG.MovieFrameCount, 1);
  EXPECT_EQ(USERFLAG.MovieNextTime, 0);
  EXPECT_EQ(video.Command1.Tag, "");
  EXPECT_EQ(video.Command1.caption.Get(), "Start Video");
}

TEST_F(VideoWindowTest, ClosingTheWindowLetsTheMovieGoOn) {
  video.Command1.clicked();
  video.Form_Close();
  EXPECT_FALSE(video.form.visible);
  EXPECT_EQ(USERFLAG.MovieFrameCount, 1);
  EXPECT_EQ(USERFLAG.MovieFrames, 900);
  ShowVideoWindow();
  EXPECT_TRUE(video.form.visible);
  EXPECT_EQ(video.Command1.caption.Get(), "Start Video");
}

// ---- with the writer ------------------------------------------------------------------------------------

TEST_F(VideoWindowTest, AskedForAgainItComesToTheFrontAsItIs) {
  frmVideo().Text1.text = "7";
  int refreshed = 0;
  frmVideo().form.refresh = [&] { ++refreshed; };
  ShowVideoWindow();
  EXPECT_EQ(refreshed, 1);
  EXPECT_EQ(frmVideo().Text1.text.Get(), "7") << "what was typed stays";
}

TEST_F(VideoWindowTest, AMovieOfFiveFramesEndsByItself) {
  ShowSmallView();
  video.HScroll1.value = 5;
  video.Command1.clicked();
  RunMovie();
  EXPECT_EQ(USERFLAG.MovieFrameCount, 0);
  EXPECT_EQ(USERFLAG.MovieNextTime, 0);
  EXPECT_EQ(clock.seconds, 36006) << "five frames and the tick that ends it";
  EXPECT_EQ(directory.EntryCount(), 5);
}

TEST_F(VideoWindowTest, AnImageDirectoryThatIsAFileGivesNoFramesAndNoBox) {
  Load();
  MovieDirectory = directory.File("file");
  std::ofstream(MovieDirectory) << "not a directory";
  MoviePrefix = "orbit";
  video.HScroll1.value = 2;
  video.Command1.clicked();
  RunMovie();
  EXPECT_EQ(USERFLAG.MovieFrameCount, 0);
  EXPECT_EQ(directory.EntryCount(), 1);
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

}  // namespace
}  // namespace quorb
