#pragma once

#include "Controls.h"

namespace quorb {

/// The movie window: how many frames a movie has and how far apart they are, its start, its pause and its
/// end. Its routines set the fields of USERFLAG that the movie writer follows. Each control has the value
/// that the window is designed with.
struct VideoWindow {
  VideoWindow();

  Label form;                 ///< the window itself: its title, and whether it is open
  ScrollBar HScroll1;         ///< number of frames; 0 stands for 20
  ScrollBar HScroll2;         ///< the period: tenths of a second from 1, or steps of 4 s of data time
  Label Label1, Label2;       ///< texts of HScroll2 and HScroll1
  CheckBox Check1;            ///< the period runs in the time of the data
  TextBox Text1;              ///< the period in seconds; another one may be typed ahead of the start
  TextBox Text2, Text3;       ///< the period and the progress, in words
  Button Command1;            ///< start, or going on behind a pause, which its Tag "ReStart" tells
  Button Command2, Command3;  ///< pause; end
  bool loaded = false;        ///< Form_Load has run

  /// Takes the period from its bar and rewrites the fields and their tool tips. What was typed into Text1 is
  /// gone.
  void update();

  /// Rewrites the two lines from the movie as it stands: the frames that are done, the frames that are
  /// wanted, and the seconds between them. With no movie running, -1 frames are done.
  void ShowLines();

  // Event routines.

  /// The window is made; it comes to the front.
  void Form_Load();
  void Form_Activate();
  /// The window is closed with its own close button: it hides, and the movie goes on.
  void Form_Close();
  void HScroll1_Change();
  void HScroll2_Change();
  void Check1_Click();
  void Command1_Click();
  void Command2_Click();
  /// Ends the movie behind one more frame, which is due at once, also behind a pause. The window hides.
  void Command3_Click();

 private:
  void Start();
  void GoOn();
  /// Command1 starts a movie again.
  void ForgetPause();

  std::string SeriesMade;  ///< the prefix of the frames of the last movie that was started
};

/// The movie window; made on its first use.
VideoWindow& frmVideo();

/// Opens the movie window, or brings it to the front, and does not wait for its end.
void ShowVideoWindow();

/// Forgets the movie window: the next use makes a new one.
void ForgetVideoWindow();

}  // namespace quorb
