#include "frmVideo.h"

#include <memory>

#include "ActiveWindow.h"
#include "DayClock.h"
#include "Movie.h"
#include "NumberPicture.h"
#include "NumberText.h"
#include "SaveImage.h"
#include "UserFlag.h"

namespace quorb {

namespace {

constexpr double kDefaultFrames = 20;
constexpr double kSecondsPerDay = 86400;
constexpr double kNeverReached = 100000;
constexpr double kLongAgo = -1e300;
constexpr double kDataSecondsPerStep = 4;
constexpr int kClockPeriods = 16;
constexpr int kDataPeriods = 21600;
constexpr const char* kRestartTag = "ReStart";

std::unique_ptr<VideoWindow> videoWindow;

double WantedFrames(const ScrollBar& bar) {
  return bar.value == 0 ? kDefaultFrames : bar.value;
}

}  // namespace

VideoWindow::VideoWindow() {
  form.caption = "Movie sequence";
  form.visible = false;
  HScroll1.max = 1023;
  HScroll1.value.Design(900);
  HScroll2.max = kClockPeriods;
  HScroll2.largeChange = 1;
  HScroll2.value.Design(5);
  Label1.caption = "Period ";
  Label2.caption = "Number of frames";
  Check1.caption = "simulation model time";
  Check1.toolTip = "check for making video wrt the plot which can be quite high, not wrt the computer timer";
  Command1.caption = "Start/Restart Video";
  Command2.caption = "Pause Video";
  Command3.caption = "End Video";

  HScroll1.value.changed = [this] { HScroll1_Change(); };
  HScroll2.value.changed = [this] { HScroll2_Change(); };
  Check1.value.changed = [this] { Check1_Click(); };
  Command1.clicked = [this] { Command1_Click(); };
  Command2.clicked = [this] { Command2_Click(); };
  Command3.clicked = [this] { Command3_Click(); };
}

void VideoWindow::ShowLines() {
  Text3.text = FormatPicture(USERFLAG.MovieFrameCount - 1, "#") + " / " +
               FormatPicture(USERFLAG.MovieFrames, "#") + " Frames ";
  Text2.text = FormatPicture(USERFLAG.MovieFrameTime, "#.##") + " seconds between Frames";
}

void VideoWindow::update() {
  if (USERFLAG.MovieRealTime == 1.0) USERFLAG.MovieFrameTime = HScroll2.value * kDataSecondsPerStep;
  if (USERFLAG.MovieRealTime == 0) USERFLAG.MovieFrameTime = (HScroll2.value + 1) / 10.0;
  Text1.text = WithDecimalMark(GeneralNumber(USERFLAG.MovieFrameTime));
  ShowLines();
  Text3.toolTip =
      "Before or During a movie process, use this scrollbar to increase the number of Frames (default is 20)";
  Text2.toolTip =
      "Before or During a movie process, use this scrollbar to change the rate of the Frames (in seconds), "
      "default is 1 s";
}

void VideoWindow::Form_Load() {
  loaded = true;
  Command1.caption = "Start Video";
  Form_Activate();
}

void VideoWindow::Form_Activate() {
  HScroll1_Change();
  HScroll2_Change();
  update();
}

void VideoWindow::Form_Close() {
  form.visible = false;
  WindowComesForward(ProgramWindow::main);
}

void VideoWindow::HScroll1_Change() {
  USERFLAG.MovieFrames = WantedFrames(HScroll1);
  update();
}

void VideoWindow::HScroll2_Change() {
  update();
}

void VideoWindow::Check1_Click() {
  USERFLAG.MovieRealTime = Check1.value;
  if (Check1.value == 1) HScroll2.SetBounds(0, kDataPeriods, kDataPeriods / 1440);
  if (Check1.value == 0) HScroll2.SetBounds(0, kClockPeriods, 1);
  update();
}

void VideoWindow::Command1_Click() {
  // A movie that has ended behind its pause cannot go on.
  if (Command1.Tag == kRestartTag && USERFLAG.MovieFrameCount > 0) {
    GoOn();
  } else {
    Start();
  }
}

void VideoWindow::Start() {
  const double typedPeriod = ValText(Text1.text.Get());  // ahead of update(), which rewrites the field
  ForgetPause();
  // The frames of a movie that was made before stay.
  if (!MoviePrefix.empty() && MoviePrefix == SeriesMade) NameMovie();
  SeriesMade = MoviePrefix;
  update();
  USERFLAG.MovieRealTime = Check1.value;
  USERFLAG.MovieFrameTime = typedPeriod;
  USERFLAG.MovieFrames = WantedFrames(HScroll1);
  USERFLAG.MovieFrameCount = 1;
  USERFLAG.MovieNextTime = 0;
  ShowLines();
}

void VideoWindow::GoOn() {
  if (USERFLAG.MovieRealTime == 1.0) USERFLAG.MovieNextTime = USERFLAG.MovieDataTime * kSecondsPerDay;
  if (USERFLAG.MovieRealTime == 0) USERFLAG.MovieNextTime = CurrentDayClock().Seconds();
  ForgetPause();
  update();
}

void VideoWindow::ForgetPause() {
  Command1.Tag.clear();
  Command1.caption = "Start Video";
}

void VideoWindow::Command2_Click() {
  USERFLAG.MovieNextTime = CurrentDayClock().Seconds() + kNeverReached;
  Command1.Tag = kRestartTag;
  Command1.caption = "Restart Video";
  update();
}

void VideoWindow::Command3_Click() {
  USERFLAG.MovieFrames = USERFLAG.MovieFrameCount;
  update();
  // The writer ends behind one more frame, which might never come due: behind a pause, or while the time of
  // the data stands still.
  if (USERFLAG.MovieFrameCount > 0) USERFLAG.MovieNextTime = kLongAgo;
  ForgetPause();
  form.visible = false;
  WindowComesForward(ProgramWindow::main);
}

VideoWindow& frmVideo() {
  if (videoWindow == nullptr) videoWindow = std::make_unique<VideoWindow>();
  return *videoWindow;
}

void ShowVideoWindow() {
  VideoWindow& window = frmVideo();
  if (!window.loaded) window.Form_Load();
  const bool wasOpen = window.form.visible;
  window.form.visible = true;
  window.form.Refresh();
  if (!wasOpen) WindowComesForward(ProgramWindow::movie);
}

void ForgetVideoWindow() {
  videoWindow.reset();
}

}  // namespace quorb
