#include "SaveImage.h"

#include <algorithm>
#include <chrono>
#include <string_view>
#include <thread>

#include "Desktop.h"
#include "Dialogs.h"
#include "FileAccess.h"
#include "Movie.h"
#include "RunState.h"
#include "UserFlag.h"
#include "frmMain.h"
#include "frmVideo.h"

namespace quorb {

namespace {

constexpr std::string_view kMarksOutOfNames = "/\\:";
constexpr std::string_view kNotSaved = "Not saved: ";
constexpr int kPausesForExplorer = 2;
constexpr std::chrono::milliseconds kPause(50);

std::string WithoutMarks(std::string text) {
  const auto isMark = [](char c) { return kMarksOutOfNames.find(c) != kMarksOutOfNames.npos; };
  text.erase(std::remove_if(text.begin(), text.end(), isMark), text.end());
  return text;
}

/// The directory of the images, with a mark behind.
std::string ImageDirectory() {
  TextBox& field = frmMain->Text6;
  const std::string mark(1, CurrentDesktop().DirectoryMark());
  if (field.text.Get().empty()) field.text = CurrentDesktop().ProgramDirectory() + mark;
  const std::string& directory = field.text;
  return directory.ends_with('/') || directory.ends_with('\\') ? directory : directory + mark;
}

/// Where a file of that directory really comes to stand, with a mark behind.
std::string RealDirectory(const std::string& directory, const std::string& name) {
  const std::string path = CurrentFileAccess().RealLocation(directory + name);
  return path.substr(0, path.size() - name.size());
}

void ShowImages(const std::string& directory, const std::string& message) {
  frmMain->ExplorerShown = true;
  CurrentDesktop().ShowDirectory(directory);
  CurrentDialogs().PumpEvents();
  for (int pause = 0; pause < kPausesForExplorer; ++pause) {
    std::this_thread::sleep_for(kPause);
    CurrentDialogs().PumpEvents();
  }
  frmMain->Text21.text = message;
}

std::string FailureText(const std::string& name, const std::string& directory) {
  return std::string(kNotSaved) + name + " cannot be written into \"" + directory +
         "\". Check that this directory exists, may be written and has room, or give another one in the "
         "options.";
}

void TakeFailureBack() {
  TextBox& message = frmMain->Text21;
  if (message.text.Get().starts_with(kNotSaved)) message.text = "";
}

}  // namespace

std::string TimeStamp() {
  return WithoutMarks(CurrentDesktop().DateText()) + "_" + WithoutMarks(CurrentDesktop().TimeText());
}

void mnuFSaveAs_Click() {
  const std::string wanted = ImageDirectory();
  const std::string name = "Quorb" + TimeStamp() + ".bmp";
  const std::string directory = RealDirectory(wanted, name);
  if (!TheScene->SaveBMP(name, directory)) {
    frmMain->Text21.text = FailureText(name, directory);
    return;
  }
  TakeFailureBack();
  if (frmMain->ExplorerShown) return;
  std::string message = "Explorer open with image saved " + name;
  if (directory != wanted) {
    message += " But since Windows 8... and its VirtualStore it is now: " + directory;
  }
  ShowImages(directory, message);
}

void NameMovie() {
  MoviePrefix = "Quorb" + TimeStamp();
  MovieDirectory = RealDirectory(ImageDirectory(), MoviePrefix);
}

void mnuFMovieSaveAs_Click() {
  if (USERFLAG.MovieArmed == 1.0) {
    USERFLAG.MovieFrameCount = USERFLAG.MovieNextTime = USERFLAG.MovieArmed = 0;
    return;
  }
  NameMovie();
  TakeFailureBack();
  ShowVideoWindow();
}

void TellMovieFrameLost(const std::string& name) {
  frmMain->Text21.text = FailureText(name, MovieDirectory) + " The movie goes on.";
}

}  // namespace quorb
