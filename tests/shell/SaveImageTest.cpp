#include "SaveImage.h"

#include <filesystem>

#include "Movie.h"
#include "ScriptedDayClock.h"
#include "TemporaryDirectory.h"
#include "WindowFixture.h"
#include "frmVideo.h"

namespace quorb {
namespace {

class SaveImageTest : public WindowFixture {
 protected:
  SaveImageTest() : window(Load()) {
    host.width = 2;
    host.height = 2;
    SetView(2, 2, [](int, int) { return std::array<std::uint8_t, 3>{1, 2, 3}; });
    window.Text6.text = place.substr(0, place.size() - 1);
    frmVideo().form.visible = false;
    ClearCalls();
  }
  ~SaveImageTest() override { ForgetView(); }

  std::vector<std::string> Saved() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(place))
      names.push_back(entry.path().filename().string());
    return names;
  }

  TemporaryDirectory directory;
  const std::string place = directory.File("");  ///< with a mark behind
  MainWindow& window;
};

TEST_F(SaveImageTest, TheNameIsMadeOfTheDateAndTheTimeOfTheClock) {
  EXPECT_EQ(TimeStamp(), "20260703_091502");
}

TEST_F(SaveImageTest, TheNameHoldsNoMarkOfAnyLocale) {
  desktop.date = "2026/07/03";
  desktop.time = "9:15:02";
  EXPECT_EQ(TimeStamp(), "20260703_91502");
  desktop.time = "09.15.02";
  EXPECT_EQ(TimeStamp(), "20260703_09.15.02");
  desktop.date = "03\\07:2026";
  EXPECT_EQ(TimeStamp(), "03072026_09.15.02");
}

TEST_F(SaveImageTest, AnImageGoesIntoTheDirectoryOfTheImages) {
  window.mnuFSaveAs.clicked();
  EXPECT_THAT(Saved(), ElementsAre("Quorb20260703_091502.bmp"));
}

TEST_F(SaveImageTest, WithoutADirectoryTheProgramsOwnIsTakenAndShown) {
  desktop.programDirectory = place.substr(0, place.size() - 1);
  window.Text6.text = "";
  window.mnuFSaveAs.clicked();
  EXPECT_EQ(window.Text6.text.Get(), place);
  EXPECT_EQ(StoredUse("SetDirBMP"), place);
  EXPECT_EQ(Saved().size(), 1U);
}

TEST_F(SaveImageTest, TheFirstImageShowsItsDirectoryAndTheSecondDoesNot) {
  const int before = dialogs.pumps;
  window.mnuFSaveAs.clicked();
  EXPECT_THAT(desktop.shown, ElementsAre(place));
  EXPECT_GT(dialogs.pumps, before);
  EXPECT_TRUE(window.ExplorerShown);
  EXPECT_EQ(window.Text21.text.Get(), "Explorer open with image saved Quorb20260703_091502.bmp");
  window.Text21.text = "";
  desktop.time = "09:16:00";
  window.mnuFSaveAs.clicked();
  EXPECT_EQ(desktop.shown.size(), 1U);
  EXPECT_EQ(window.Text21.text.Get(), "");
  EXPECT_EQ(Saved().size(), 2U);
}

TEST_F(SaveImageTest, AnImageThatStandsElsewhereIsToldWithItsPlace) {
  const std::string name = "Quorb20260703_091502.bmp";
  window.Text6.text = "/opt/quorb/";
  files.realLocations["/opt/quorb/" + name] = place + name;
  window.mnuFSaveAs.clicked();
  EXPECT_THAT(Saved(), ElementsAre(name));
  EXPECT_THAT(desktop.shown, ElementsAre(place));
  EXPECT_EQ(window.Text21.text.Get(), "Explorer open with image saved " + name +
                                          " But since Windows 8... and its VirtualStore it is now: " + place);
}

TEST_F(SaveImageTest, ADirectoryThatIsNoneSavesNothingAndShowsNoBox) {
  const std::string file = place + "Quorb20260703_091502.bmp";
  window.mnuFSaveAs.clicked();
  for (const std::string& text : {file, std::string("/no/such/place"), std::string(10000, 'd')}) {
    window.Text6.text = text;
    desktop.time = "10:00:00";
    window.mnuFSaveAs.clicked();
  }
  EXPECT_EQ(Saved().size(), 1U);
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

TEST_F(SaveImageTest, AnImageThatCannotBeWrittenIsToldAndItsDirectoryNotShown) {
  window.Text6.text = "/no/such/place";
  window.mnuFSaveAs.clicked();
  EXPECT_EQ(window.Text21.text.Get(),
            "Not saved: Quorb20260703_091502.bmp cannot be written into \"/no/such/place/\". Check that this "
            "directory exists, may be written and has room, or give another one in the options.");
  EXPECT_THAT(desktop.shown, IsEmpty());
  EXPECT_FALSE(window.ExplorerShown) << "the first image that is saved shows its directory";
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

TEST_F(SaveImageTest, AnImageThatCannotBeWrittenElsewhereIsToldWithThatPlace) {
  const std::string name = "Quorb20260703_091502.bmp";
  window.Text6.text = "/opt/quorb/";
  files.realLocations["/opt/quorb/" + name] = "/no/such/home/" + name;
  window.mnuFSaveAs.clicked();
  EXPECT_THAT(window.Text21.text.Get(),
              testing::StartsWith("Not saved: " + name + " cannot be written into \"/no/such/home/\"."));
}

TEST_F(SaveImageTest, EachFailureIsToldAndTheNextSuccessTakesItBack) {
  window.mnuFSaveAs.clicked();
  window.Text6.text = "/no/such/place";
  desktop.time = "09:16:00";
  window.mnuFSaveAs.clicked();
  EXPECT_THAT(window.Text21.text.Get(), testing::StartsWith("Not saved: Quorb20260703_091600.bmp"));
  desktop.time = "09:17:00";
  window.mnuFSaveAs.clicked();
  EXPECT_THAT(window.Text21.text.Get(), testing::StartsWith("Not saved: Quorb20260703_091700.bmp"));
  window.Text6.text = place;
  window.mnuFSaveAs.clicked();
  EXPECT_EQ(window.Text21.text.Get(), "");
  EXPECT_EQ(Saved().size(), 2U);
}

TEST_F(SaveImageTest, ASecondImageLeavesAnotherMessage) {
  window.mnuFSaveAs.clicked();
  window.Text21.text = "reading";
  desktop.time = "09:16:00";
  window.mnuFSaveAs.clicked();
  EXPECT_EQ(window.Text21.text.Get(), "reading");
}

TEST_F(SaveImageTest, AFrameOfAMovieThatCannotBeWrittenIsToldOnce) {
  window.Text6.text = "/no/such/place";
  window.mnuFMovieSaveAs.clicked();
  ScriptedDayClock clock;
  clock.seconds = 36000;
  frmVideo().Command1.clicked();
  TheScene->MovieSaveAs();
  EXPECT_EQ(
      window.Text21.text.Get(),
      "Not saved: Quorb20260703_0915021.bmp cannot be written into \"/no/such/place/\". Check that this "
      "directory exists, may be written and has room, or give another one in the options. The movie goes "
      "on.");
  window.Text21.text = "";
  clock.seconds = 36010;
  TheScene->MovieSaveAs();
  EXPECT_EQ(USERFLAG.MovieFrameCount, 3);
  EXPECT_EQ(window.Text21.text.Get(), "");
}

TEST_F(SaveImageTest, AMovieThatIsStartedAnewLeavesTheFramesOfTheOneBefore) {
  window.mnuFMovieSaveAs.clicked();
  ScriptedDayClock clock;
  clock.seconds = 36000;
  for (const char* time : {"09:15:02", "09:20:00", "09:25:00"}) {
    desktop.time = time;
    frmVideo().Command1.clicked();
    TheScene->MovieSaveAs();
    USERFLAG.MovieFrameCount = 0;
  }
  EXPECT_EQ(MoviePrefix, "Quorb20260703_092500");
  EXPECT_EQ(Saved().size(), 3U);
}

TEST_F(SaveImageTest, AMovieIsNamedAndItsWindowShown) {
  window.mnuFMovieSaveAs.clicked();
  EXPECT_EQ(MoviePrefix, "Quorb20260703_091502");
  EXPECT_EQ(MovieDirectory, place);
  EXPECT_TRUE(frmVideo().form.visible);
  EXPECT_EQ(USERFLAG.MovieArmed, 0) << "only the button arms it";
}

TEST_F(SaveImageTest, AnArmedMovieIsStopped) {
  USERFLAG.MovieArmed = 1.0;
  USERFLAG.MovieFrameCount = 5;
  USERFLAG.MovieNextTime = 77;
  MoviePrefix = "before";
  window.mnuFMovieSaveAs.clicked();
  EXPECT_EQ(USERFLAG.MovieFrameCount, 0);
  EXPECT_EQ(USERFLAG.MovieNextTime, 0);
  EXPECT_EQ(USERFLAG.MovieArmed, 0);
  EXPECT_EQ(MoviePrefix, "before");
  EXPECT_FALSE(frmVideo().form.visible);
}

}  // namespace
}  // namespace quorb
