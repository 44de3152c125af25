#include "WatchedWorker.h"

#include <signal.h>

#include <algorithm>
#include <utility>

namespace quorb {

using std::chrono::milliseconds;

namespace {

// Writing to an office that has just gone would end the process. The threads that the jobs start inherit
// this.
void BlockPipeSignal() {
  sigset_t pipe;
  sigemptyset(&pipe);
  sigaddset(&pipe, SIGPIPE);
  pthread_sigmask(SIG_BLOCK, &pipe, nullptr);
}

}  // namespace

WatchedWorker::WatchedWorker(milliseconds silence, std::function<void()> cut)
    : silence_(silence), cut_(std::move(cut)), worker_([this] { Work(); }), watch_([this] { Watch(); }) {}

WatchedWorker::~WatchedWorker() {
  {
    const std::lock_guard lock(mutex_);
    ending_ = true;
  }
  changed_.notify_all();
  worker_.join();
  watch_.join();
}

void WatchedWorker::Work() {
  BlockPipeSignal();
  std::unique_lock lock(mutex_);
  for (;;) {
    changed_.wait(lock, [this] { return job_ || ending_; });
    if (!job_) return;
    const std::function<void()> job = std::exchange(job_, nullptr);
    lock.unlock();
    job();
    lock.lock();
    running_ = cutsNow_ = false;
    changed_.notify_all();
  }
}

void WatchedWorker::Watch() {
  BlockPipeSignal();
  std::unique_lock lock(mutex_);
  while (!ending_ || running_) {
    changed_.wait(lock, [this] { return running_ || ending_; });
    unsigned seen = pulse_;
    auto since = Clock::now();
    while (running_) {
      changed_.wait_for(lock, std::min(silence_, milliseconds(50)), [this] { return cutsNow_ || !running_; });
      if (!running_) break;
      const bool cutsNow = std::exchange(cutsNow_, false) || ending_;
      if (pulse_ != seen && !cutsNow) {
        seen = pulse_;
        since = Clock::now();
      } else if (cutsNow || Clock::now() - since >= silence_) {
        lock.unlock();
        cut_();
        lock.lock();
        since = Clock::now();
      }
    }
  }
}

JobEnd WatchedWorker::Run(std::function<void()> job, milliseconds patience,
                          const std::function<void()>& meanwhile) {
  const auto deadline = Clock::now() + patience;
  std::unique_lock lock(mutex_);
  if (running_) return JobEnd::busy;
  job_ = std::move(job);
  running_ = true;
  ++pulse_;
  changed_.notify_all();
  while (running_) {
    const auto now = Clock::now();
    if (now >= deadline) return JobEnd::running;
    const auto step =
        meanwhile ? std::min<Clock::duration>(milliseconds(20), deadline - now) : deadline - now;
    if (changed_.wait_for(lock, step, [this] { return !running_; })) break;
    if (!meanwhile) continue;
    lock.unlock();
    meanwhile();
    lock.lock();
  }
  return JobEnd::done;
}

void WatchedWorker::CutRunning() {
  const std::lock_guard lock(mutex_);
  cutsNow_ = running_;
  changed_.notify_all();
}

bool WatchedWorker::Running() {
  const std::lock_guard lock(mutex_);
  return running_;
}

}  // namespace quorb
