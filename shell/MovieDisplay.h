#pragma once

namespace quorb {

/// Runs ahead of each frame. While a movie runs, the movie window tells its progress; the labels of the
/// redraw bars are kept at its first frame, and come back once when it has ended.
void ShowMovieProgress();

}  // namespace quorb
