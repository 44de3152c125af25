#include "WatchedWorker.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace quorb {
namespace {

using std::chrono::milliseconds;

// A job that waits until it is freed.
struct Hanging {
  std::atomic<bool> freed{false};
  void Wait() const {
    while (!freed)
      std::this_thread::sleep_for(milliseconds(1));
  }
};

TEST(WatchedWorker, DoesAJobAndComesBack) {
  WatchedWorker worker(milliseconds(1000), [] { ADD_FAILURE() << "cut"; });
  int done = 0;
  EXPECT_EQ(worker.Run([&] { done = 7; }, milliseconds(10000), nullptr), JobEnd::done);
  EXPECT_EQ(done, 7);
}

TEST(WatchedWorker, CutsAJobThatGivesNoSignOfLife) {
  Hanging hanging;
  WatchedWorker worker(milliseconds(100), [&] { hanging.freed = true; });
  const auto begin = WatchedWorker::Clock::now();
  EXPECT_EQ(worker.Run([&] { hanging.Wait(); }, milliseconds(10000), nullptr), JobEnd::done);
  EXPECT_GE(WatchedWorker::Clock::now() - begin, milliseconds(100));
}

TEST(WatchedWorker, LeavesAJobAloneThatGivesSignsOfLife) {
  std::atomic<bool> cut{false};
  WatchedWorker worker(milliseconds(400), [&] { cut = true; });
  const auto job = [&] {
    for (int i = 0; i < 100; ++i) {
      std::this_thread::sleep_for(milliseconds(10));
      ++worker.Pulse();
    }
  };
  EXPECT_EQ(worker.Run(job, milliseconds(20000), nullptr), JobEnd::done);
  EXPECT_FALSE(cut);
}

TEST(WatchedWorker, LetsTheCallerGoWhenHisPatienceIsOver) {
  Hanging hanging;
  WatchedWorker worker(milliseconds(60000), [&] { hanging.freed = true; });
  EXPECT_EQ(worker.Run([&] { hanging.Wait(); }, milliseconds(20), nullptr), JobEnd::running);
  EXPECT_TRUE(worker.Running());
  EXPECT_EQ(worker.Run([] {}, milliseconds(20), nullptr), JobEnd::busy);
}

TEST(WatchedWorker, CallsBackWhileTheCallerWaits) {
  WatchedWorker worker(milliseconds(60000), [] {});
  int calls = 0;
  worker.Run([] { std::this_thread::sleep_for(milliseconds(200)); }, milliseconds(60000), [&] { ++calls; });
  EXPECT_GE(calls, 3);
}

TEST(WatchedWorker, AJobThatWritesToAClosedPipeDoesNotEndTheProgram) {
  WatchedWorker worker(milliseconds(60000), [] {});
  ssize_t written = 0;
  const auto job = [&] {
    int ends[2] = {-1, -1};
    ASSERT_EQ(pipe(ends), 0);
    close(ends[0]);
    std::thread inherits([&] { written = write(ends[1], "x", 1); });
    inherits.join();
    close(ends[1]);
  };
  EXPECT_EQ(worker.Run(job, milliseconds(10000), nullptr), JobEnd::done);
  EXPECT_EQ(written, -1);
}

TEST(WatchedWorker, EndsThoughAJobHangs) {
  Hanging hanging;
  {
    WatchedWorker worker(milliseconds(60000), [&] { hanging.freed = true; });
    worker.Run([&] { hanging.Wait(); }, milliseconds(10), nullptr);
  }
  EXPECT_TRUE(hanging.freed);
}

}  // namespace
}  // namespace quorb
