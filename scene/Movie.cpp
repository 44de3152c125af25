#include "Movie.h"

#include "ClassGl.h"
#include "DayClock.h"
#include "NumberPicture.h"
#include "UserFlag.h"

namespace quorb {

std::string MovieDirectory, MoviePrefix;

namespace {

constexpr double kSecondsPerDay = 86400;

}  // namespace

void ClassGl::MovieSaveAs() {
  if (USERFLAG.MovieFrameCount > USERFLAG.MovieFrames) {
    USERFLAG.MovieFrameCount = 0;
    USERFLAG.MovieNextTime = 0;
    return;
  }
  const double due = USERFLAG.MovieFrameTime + USERFLAG.MovieNextTime;
  const double dataSeconds = USERFLAG.MovieDataTime * kSecondsPerDay;
  if (USERFLAG.MovieRealTime == 1.0 && due <= dataSeconds) {
    SaveMovieFrame();
    USERFLAG.MovieNextTime = dataSeconds;
  }
  const double clock = CurrentDayClock().Seconds();
  if (USERFLAG.MovieRealTime == 0 && due < clock) {
    SaveMovieFrame();
    USERFLAG.MovieNextTime = clock;
  }
}

void ClassGl::SaveMovieFrame() {
  if (USERFLAG.MovieFrameCount == 1) FrameLossTold = false;
  const std::string name = MoviePrefix + FormatPicture(USERFLAG.MovieFrameCount, "#") + ".bmp";
  const bool written = SaveBMP(name, MovieDirectory);
  if (!written && !FrameLossTold) {
    FrameLossTold = true;
    if (MovieFrameLost) MovieFrameLost(name);
  }
  USERFLAG.MovieFrameCount += 1;
}

}  // namespace quorb
