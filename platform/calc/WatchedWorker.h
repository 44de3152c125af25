#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace quorb {

/// What waiting for a job came to.
enum class JobEnd {
  done,
  running,  ///< The caller's patience was over; the job goes on.
  busy,     ///< An earlier job is still running; this one was not begun.
};

/// A thread that does one job at a time, and a watch over it: a job that gives no sign of life for some time
/// is cut, which frees it from what it waits for.
class WatchedWorker {
 public:
  using Clock = std::chrono::steady_clock;

  /// @param silence how long a job may go without a sign of life.
  /// @param cut frees the running job from the call in which it hangs; called on a thread of the watch's own,
  /// once a job, and again after each further such time while the job does not end.
  WatchedWorker(std::chrono::milliseconds silence, std::function<void()> cut);
  /// Waits for the running job, which is cut.
  ~WatchedWorker();
  WatchedWorker(const WatchedWorker&) = delete;
  WatchedWorker& operator=(const WatchedWorker&) = delete;

  /// Counted up by a job as its sign of life.
  std::atomic<unsigned>& Pulse() { return pulse_; }

  /// Begins a job and waits for its end.
  /// @param patience how long the caller waits; the job is its own then and owns all that it writes to.
  /// @param meanwhile called about every 20 ms while the caller waits; may be empty.
  JobEnd Run(std::function<void()> job, std::chrono::milliseconds patience,
             const std::function<void()>& meanwhile);

  /// Cuts the running job without waiting for its silence; does nothing when none runs.
  void CutRunning();

  /// True while a job runs.
  bool Running();

 private:
  void Work();
  void Watch();

  const std::chrono::milliseconds silence_;
  const std::function<void()> cut_;
  std::atomic<unsigned> pulse_{0};
  std::mutex mutex_;
  std::condition_variable changed_;
  std::function<void()> job_;
  bool running_ = false;
  bool cutsNow_ = false;
  bool ending_ = false;
  std::thread worker_;
  std::thread watch_;
};

}  // namespace quorb
