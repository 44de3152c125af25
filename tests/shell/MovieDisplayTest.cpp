#include "MovieDisplay.h"

#include "WindowFixture.h"
#include "frmVideo.h"

namespace quorb {
namespace {

class MovieDisplayTest : public WindowFixture {
 protected:
  MovieDisplayTest() : window(Load()) {
    USERFLAG.MovieFrames = 20;
    USERFLAG.MovieFrameTime = 0.5;
  }

  MainWindow& window;
};

TEST_F(MovieDisplayTest, EachFrameOfAMovieTellsItsProgress) {
  USERFLAG.MovieFrameCount = 1;
  HostEventsOfWindow().Draw();
  EXPECT_EQ(frmVideo().Text3.text.Get(), " / 20 Frames ");
  EXPECT_EQ(frmVideo().Text2.text.Get(), ".5 seconds between Frames");
  USERFLAG.MovieFrameCount = 8;
  HostEventsOfWindow().Draw();
  EXPECT_EQ(frmVideo().Text3.text.Get(), "7 / 20 Frames ");
}

TEST_F(MovieDisplayTest, WithoutAMovieTheLinesStay) {
  frmVideo().Text3.text = "before";
  ShowMovieProgress();
  EXPECT_EQ(frmVideo().Text3.text.Get(), "before");
}

TEST_F(MovieDisplayTest, TheLabelsOfTheFirstFrameComeBackOnceBehindTheMovie) {
  window.Text2.caption = "Redraw speed 512";
  window.Text3.caption = "Redraw 10000";
  window.Text3.toolTip = "redraw tip";
  USERFLAG.MovieFrameCount = 1;
  ShowMovieProgress();
  window.Text2.caption = "changed";
  window.Text3.caption = "changed";
  window.Text3.toolTip = "changed";
  USERFLAG.MovieFrameCount = 2;
  ShowMovieProgress();
  EXPECT_EQ(window.Text2.caption.Get(), "changed");

  USERFLAG.MovieFrameCount = 0;
  ShowMovieProgress();
  EXPECT_EQ(window.Text2.caption.Get(), "Redraw speed 512");
  EXPECT_EQ(window.Text3.caption.Get(), "Redraw 10000");
  EXPECT_EQ(window.Text3.toolTip.Get(), "redraw tip");

  window.Text2.caption = "later";
  ShowMovieProgress();
  EXPECT_EQ(window.Text2.caption.Get(), "later");
}

}  // namespace
}  // namespace quorb
