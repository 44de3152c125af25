#pragma once

#include <string>

namespace quorb {

/// Head of the names of images, movies and slide-show copies made now: the date as "yyyymmdd", "_" and the
/// clock time, without the marks that a name cannot hold: "20260703_091502".
std::string TimeStamp();

/// Saves the picture of the plot under the time of the clock, into the directory of the images; without one
/// the program's own is taken. The first time in a run the directory is shown to the user. A picture that
/// cannot be written is told in Text21, each time.
void mnuFSaveAs_Click();

/// Names the frames of the next movie by the time of the clock, and their directory.
void NameMovie();

/// Stops the movie that is armed; else names the frames of the next one by the time of the clock, and shows
/// the movie window without waiting for it.
void mnuFMovieSaveAs_Click();

/// Tells in Text21 that the frame of this name, and with it perhaps more of the running movie, is not saved.
void TellMovieFrameLost(const std::string& name);

}  // namespace quorb
