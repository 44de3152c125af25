#include "CallWorker.h"

#include <objbase.h>

#include <algorithm>
#include <thread>
#include <utility>

namespace quorb {

namespace {

constexpr std::chrono::milliseconds kPumpEvery(20);

}  // namespace

CallWorker::CallWorker() : state_(std::make_shared<State>()) {
  const std::shared_ptr<State> state = state_;
  std::thread([state] {
    // A thread without a message loop of its own simply waits in its calls.
    const HRESULT initialised = CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    Work(*state);
    if (SUCCEEDED(initialised)) CoUninitialize();
    const std::lock_guard lock(state->mutex);
    state->ended = true;
    state->changed.notify_all();
  }).detach();
}

CallWorker::~CallWorker() {
  std::unique_lock lock(state_->mutex);
  state_->ending = true;
  state_->changed.notify_all();
  state_->changed.wait(lock, [this] { return state_->ended || state_->running; });
}

void CallWorker::Work(State& state) {
  std::unique_lock lock(state.mutex);
  for (;;) {
    state.changed.wait(lock, [&] { return state.job || state.ending; });
    if (!state.job) return;
    std::function<void()> job = std::exchange(state.job, nullptr);
    lock.unlock();
    job();
    job = nullptr;
    lock.lock();
    state.running = state.hanging = false;
    state.changed.notify_all();
  }
}

bool CallWorker::WaitUntilIdle(std::chrono::milliseconds limit) {
  std::unique_lock lock(state_->mutex);
  if (state_->hanging) return false;
  const bool isIdle = state_->changed.wait_for(lock, limit, [this] { return !state_->running; });
  state_->hanging = !isIdle;
  return isIdle;
}

bool CallWorker::Run(std::function<void()> job, const JobWait& wait) {
  using Clock = std::chrono::steady_clock;
  std::unique_lock lock(state_->mutex);
  if (state_->running) return false;
  state_->job = std::move(job);
  state_->running = true;
  state_->changed.notify_all();
  auto deadline = Clock::now() + wait.limit;
  while (state_->running) {
    const auto now = Clock::now();
    if (now >= deadline) {
      state_->hanging = !wait.isAlive || !wait.isAlive();
      if (state_->hanging) return false;
      deadline = now + wait.limit;
    }
    const auto step = std::min<Clock::duration>(kPumpEvery, deadline - now);
    const bool done = state_->changed.wait_for(lock, step, [this] { return !state_->running; });
    if (done || !wait.meanwhile) continue;
    lock.unlock();
    wait.meanwhile();
    lock.lock();
  }
  return true;
}

}  // namespace quorb
