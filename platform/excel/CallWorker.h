#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

namespace quorb {

/// How a caller waits for its job.
struct JobWait {
  /// The job is given up after that time.
  std::chrono::milliseconds limit{5000};
  /// Called about every 20 ms; may be empty.
  std::function<void()> meanwhile;
  /// Asked when the limit is over: true grants the job as much time again. May be empty.
  std::function<bool()> isAlive;
};

/// A thread that does automation calls, one job at a time. A job that hangs is given up, not ended: it goes
/// on by itself, owns all that it writes to, and until it has come back no other job begins.
class CallWorker {
 public:
  CallWorker();
  /// Waits for the thread's end, unless a job still hangs.
  ~CallWorker();
  CallWorker(const CallWorker&) = delete;
  CallWorker& operator=(const CallWorker&) = delete;

  /// Does a job. False: it was given up, or not begun because an earlier one still hangs.
  bool Run(std::function<void()> job, const JobWait& wait);

  /// Waits until no job runs; false when one still does after that time, and at once while one runs that has
  /// been waited for in vain before.
  bool WaitUntilIdle(std::chrono::milliseconds limit);

 private:
  struct State {
    std::mutex mutex;
    std::condition_variable changed;
    std::function<void()> job;
    bool running = false;
    bool hanging = false;  // The job that runs has been waited for in vain.
    bool ending = false;
    bool ended = false;
  };
  static void Work(State& state);

  std::shared_ptr<State> state_;
};

}  // namespace quorb
