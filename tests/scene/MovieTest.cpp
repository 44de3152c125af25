#include "Movie.h"

#include "DayClock.h"
#include "ReadBytes.h"
#include "ScenePlot.h"
#include "ScriptedDialogs.h"
#include "TemporaryDirectory.h"

namespace quorb {
namespace {

/// A clock that a test sets. It is the process's clock for as long as it lives.
class ScriptedClock : public DayClock {
 public:
  ScriptedClock() { SetDayClock(this); }
  ~ScriptedClock() override { SetDayClock(nullptr); }
  ScriptedClock(const ScriptedClock&) = delete;
  ScriptedClock& operator=(const ScriptedClock&) = delete;

  double Seconds() const override { return seconds; }

  double seconds = 0;
};

/// A movie of up to 20 frames, half a second apart, that starts with its first one.
class MovieTest : public ScenePlot {
 protected:
  MovieTest() {
    SetView(4, 2, [](int, int) { return std::array<std::uint8_t, 3>{1, 2, 3}; });
    host.width = 4;
    host.height = 2;
    MovieDirectory = directory.File("");
    MoviePrefix = "orbit";
    USERFLAG.MovieFrameCount = 1;
    USERFLAG.MovieFrameTime = 0.5;
    USERFLAG.MovieFrames = 20;
  }

  /// The size of a frame of the movie, 0 when it was not saved.
  std::size_t SizeOf(const std::string& name) const { return ReadBytes(directory.File(name)).size(); }

  /// Calls MovieSaveAs at a time of the clock; true when that saved a frame.
  bool SavesAtClock(double seconds) {
    clock.seconds = seconds;
    return Saves();
  }
  bool SavesAtDataTime(double days) {
    USERFLAG.MovieDataTime = days;
    return Saves();
  }
  bool Saves() {
    const double before = USERFLAG.MovieFrameCount;
    scene.MovieSaveAs();
    return USERFLAG.MovieFrameCount == before + 1;
  }

  TemporaryDirectory directory;
  ScriptedClock clock;
};

constexpr std::size_t kFrameSize = 58 + 2 * 12;

// ---- the time of the clock ------------------------------------------------------------------------------

TEST_F(MovieTest, InClockTimeAFrameIsSavedOncePerFrameTime) {
  USERFLAG.MovieNextTime = 1000;
  EXPECT_FALSE(SavesAtClock(1000.25));
  EXPECT_FALSE(SavesAtClock(1000.5)) << "not behind the frame time yet";
  EXPECT_EQ(USERFLAG.MovieNextTime, 1000);
  EXPECT_TRUE(SavesAtClock(1000.75));
  EXPECT_EQ(USERFLAG.MovieNextTime, 1000.75) << "the clock";
  EXPECT_FALSE(SavesAtClock(1001.25));
  EXPECT_TRUE(SavesAtClock(1001.3125));
  EXPECT_EQ(USERFLAG.MovieNextTime, 1001.3125);
}

TEST_F(MovieTest, InClockTimeTheFirstFrameIsSavedAtOnce) {
  EXPECT_TRUE(SavesAtClock(36000));
  EXPECT_EQ(USERFLAG.MovieNextTime, 36000);
}

TEST_F(MovieTest, ClockTimeDoesNotLookAtTheData) {
  USERFLAG.MovieNextTime = 1000;
  clock.seconds = 1000;
  EXPECT_FALSE(SavesAtDataTime(45000));
}

TEST_F(MovieTest, ClockTimeGoesOnBehindMidnight) {
  EXPECT_TRUE(SavesAtClock(86399.75));
  EXPECT_FALSE(SavesAtClock(86400.25));
  EXPECT_TRUE(SavesAtClock(86400.5));
}

TEST_F(MovieTest, APausedMovieWaits) {
  USERFLAG.MovieNextTime = 1000 + 100000;
  EXPECT_FALSE(SavesAtClock(1000));
  EXPECT_FALSE(SavesAtClock(86400));
}

TEST_F(MovieTest, TheClockStandsAtZeroUntilOneIsSet) {
  SetDayClock(nullptr);
  EXPECT_EQ(CurrentDayClock().Seconds(), 0);
  EXPECT_FALSE(Saves());
}

// ---- the time of the data -------------------------------------------------------------------------------

TEST_F(MovieTest, InDataTimeAFrameIsSavedAtEachFrameTimeOfTheData) {
  USERFLAG.MovieRealTime = 1;
  USERFLAG.MovieFrameTime = 21600;  // a quarter of a day
  EXPECT_FALSE(SavesAtDataTime(0.125));
  EXPECT_EQ(USERFLAG.MovieNextTime, 0);
  EXPECT_TRUE(SavesAtDataTime(0.25)) << "at the frame time itself";
  EXPECT_EQ(USERFLAG.MovieNextTime, 21600);
  EXPECT_FALSE(SavesAtDataTime(0.375));
  EXPECT_TRUE(SavesAtDataTime(0.625));
  EXPECT_EQ(USERFLAG.MovieNextTime, 54000) << "the time of the data";
  EXPECT_FALSE(SavesAtDataTime(0.75));
  EXPECT_TRUE(SavesAtDataTime(0.875));
  EXPECT_EQ(USERFLAG.MovieNextTime, 75600);
}

TEST_F(MovieTest, DataTimeDoesNotLookAtTheClock) {
  USERFLAG.MovieRealTime = 1;
  EXPECT_FALSE(SavesAtClock(50000));
}

TEST_F(MovieTest, AnyOtherKindOfTimeSavesNothing) {
  USERFLAG.MovieRealTime = 2;
  USERFLAG.MovieDataTime = 45000;
  EXPECT_FALSE(SavesAtClock(50000));
}

// ---- the frames -----------------------------------------------------------------------------------------

TEST_F(MovieTest, FramesAreNumberedFromOne) {
  for (int frame = 1; frame <= 12; ++frame)
    EXPECT_TRUE(SavesAtClock(frame * 10.0));
  EXPECT_EQ(directory.EntryCount(), 12U);
  EXPECT_EQ(SizeOf("orbit1.bmp"), kFrameSize);
  EXPECT_EQ(SizeOf("orbit2.bmp"), kFrameSize);
  EXPECT_EQ(SizeOf("orbit12.bmp"), kFrameSize);
}

TEST_F(MovieTest, TheMovieEndsBehindItsLastFrame) {
  USERFLAG.MovieFrames = 3;
  for (int frame = 1; frame <= 3; ++frame)
    EXPECT_TRUE(SavesAtClock(frame * 10.0));
  EXPECT_EQ(USERFLAG.MovieFrameCount, 4) << "it ends with the next call";
  EXPECT_EQ(USERFLAG.MovieNextTime, 30);
  scene.MovieSaveAs();
  EXPECT_EQ(USERFLAG.MovieFrameCount, 0);
  EXPECT_EQ(USERFLAG.MovieNextTime, 0);
  EXPECT_EQ(directory.EntryCount(), 3U);
}

TEST_F(MovieTest, AMovieThatIsEndedBeforeItsLastFrameSavesTheOneAtHand) {
  EXPECT_TRUE(SavesAtClock(10));
  USERFLAG.MovieFrames = USERFLAG.MovieFrameCount;
  EXPECT_TRUE(SavesAtClock(20));
  EXPECT_FALSE(SavesAtClock(30));
  EXPECT_EQ(USERFLAG.MovieFrameCount, 0);
  EXPECT_EQ(directory.EntryCount(), 2U);
}

TEST_F(MovieTest, AMovieWithoutFramesEndsAtOnce) {
  USERFLAG.MovieFrames = 0;
  EXPECT_FALSE(SavesAtClock(10));
  EXPECT_EQ(USERFLAG.MovieFrameCount, 0);
  EXPECT_EQ(directory.EntryCount(), 0U);
}

TEST_F(MovieTest, AMissingDirectoryLetsTheMovieRunOnWithoutAMessage) {
  ScriptedDialogs dialogs;
  MovieDirectory = directory.File("missing");
  EXPECT_TRUE(SavesAtClock(10));
  EXPECT_TRUE(SavesAtClock(20));
  EXPECT_EQ(directory.EntryCount(), 0U);
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(MovieTest, TheFirstFrameOfASeriesThatCannotBeWrittenIsTold) {
  std::vector<std::string> lost;
  scene.MovieFrameLost = [&lost](const std::string& name) { lost.push_back(name); };
  const std::string place = MovieDirectory;
  EXPECT_TRUE(SavesAtClock(10));
  EXPECT_THAT(lost, IsEmpty());
  MovieDirectory = directory.File("missing");
  EXPECT_TRUE(SavesAtClock(20));
  EXPECT_TRUE(SavesAtClock(30));
  EXPECT_THAT(lost, ElementsAre("orbit2.bmp"));
  MovieDirectory = place;
  EXPECT_TRUE(SavesAtClock(40)) << "it goes on";
  EXPECT_EQ(SizeOf("orbit4.bmp"), kFrameSize);

  USERFLAG.MovieFrameCount = 1;
  MoviePrefix = "later";
  MovieDirectory = directory.File("missing");
  EXPECT_TRUE(SavesAtClock(50));
  EXPECT_TRUE(SavesAtClock(60));
  EXPECT_THAT(lost, ElementsAre("orbit2.bmp", "later1.bmp"));
}

TEST_F(MovieTest, TheTimerSavesTheMovieOfTheRunningTime) {
  USERFLAG.MovieRealTime = 1;
  USERFLAG.MovieFrameTime = 86400;
  for (int row = 0; row <= 10; ++row)
    SetPoint(row, row, row, 0, 0);
  TakePlotAsItIs();
  scene.CURRINDEXI = 0;
  STEPPT = 2;
  for (int tick = 0; tick < 50; ++tick) {
    scene.TheUpdateTimer_ThatTime();
    scene.Draw();
  }
  // A pass sees the time that the last frame drew: 0, which is not a day on yet, then 2, 4, 6, 8, and 10
  // again and again.
  EXPECT_EQ(directory.EntryCount(), 5U);
  EXPECT_EQ(USERFLAG.MovieFrameCount, 6);
  EXPECT_EQ(USERFLAG.MovieNextTime, 864000);
}

}  // namespace
}  // namespace quorb
