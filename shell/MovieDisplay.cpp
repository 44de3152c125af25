#include "MovieDisplay.h"

#include "UserFlag.h"
#include "frmMain.h"
#include "frmVideo.h"

namespace quorb {

namespace {

void Keep(KeptLabel& kept, const Label& label) {
  kept = {label.caption.Get(), label.toolTip.Get()};
}

void Restore(Label& label, const KeptLabel& kept) {
  label.caption = kept.caption;
  label.toolTip = kept.toolTip;
}

}  // namespace

void ShowMovieProgress() {
  MainWindow& window = *frmMain;
  MovieLabels& labels = window.movieLabels;
  if (USERFLAG.MovieFrameCount > 0) {
    if (!labels.kept) {
      Keep(labels.Text2, window.Text2);
      Keep(labels.Text3, window.Text3);
      labels.kept = true;
    }
    frmVideo().ShowLines();
  } else if (labels.kept) {
    Restore(window.Text2, labels.Text2);
    Restore(window.Text3, labels.Text3);
    labels.kept = false;
  }
}

}  // namespace quorb
