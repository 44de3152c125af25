#include "Check.h"

#include <chrono>
#include <cstdio>
#include <vector>

namespace quorb {

namespace {

struct Test {
  std::string name;
  TestBody body;
};

std::vector<Test>& Tests() {
  static std::vector<Test> tests;
  return tests;
}

int checks = 0;
int failures = 0;

}  // namespace

TestEntry::TestEntry(const char* subject, const char* name, TestBody body) {
  Tests().push_back({std::string(subject) + "." + name, body});
}

void NoteCheck(bool holds, const char* file, int line, const std::string& message) {
  ++checks;
  if (holds) return;
  ++failures;
  const std::string path = file;
  std::printf("  %s:%d: %s\n", path.substr(path.find_last_of("/\\") + 1).c_str(), line, message.c_str());
}

int RunTests(const std::string& filter) {
  using Clock = std::chrono::steady_clock;
  int run = 0, failed = 0;
  for (const Test& test : Tests()) {
    if (test.name.find(filter) == std::string::npos) continue;
    const int before = failures;
    const auto start = Clock::now();
    test.body();
    const auto spent = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count();
    const bool good = failures == before;
    std::printf("%s %s (%d ms)\n", good ? "ok    " : "FAILED", test.name.c_str(), static_cast<int>(spent));
    std::fflush(stdout);
    ++run;
    if (!good) ++failed;
  }
  std::printf("%d tests, %d checks, %d tests failed\n", run, checks, failed);
  return run == 0 ? 1 : failed;
}

}  // namespace quorb
