#pragma once

#include <sstream>
#include <string>

namespace quorb {

/// A test of this program: EXCEL_TEST(Subject, WhatItShows) { ... }. One that fails a check goes on.
using TestBody = void (*)();
struct TestEntry {
  TestEntry(const char* subject, const char* name, TestBody body);
};

/// Runs the tests whose "Subject.Name" contains `filter`, prints what fails, and gives the number of failed
/// tests.
int RunTests(const std::string& filter);

void NoteCheck(bool holds, const char* file, int line, const std::string& message);

template <typename Value>
std::string CheckText(const Value& value) {
  std::ostringstream text;
  text << value;
  return text.str();
}

template <typename Found, typename Expected>
void CheckEqual(const Found& found, const Expected& expected, const char* what, const char* file, int line) {
  const bool holds = found == expected;
  NoteCheck(holds, file, line,
            holds ? std::string()
                  : std::string(what) + " is \"" + CheckText(found) + "\", expected \"" +
                        CheckText(expected) + '"');
}

}  // namespace quorb

#define EXCEL_TEST(subject, name)                                                     \
  static void subject##name();                                                        \
  static const quorb::TestEntry entry##subject##name(#subject, #name, subject##name); \
  static void subject##name()

#define CHECK(condition) quorb::NoteCheck((condition), __FILE__, __LINE__, #condition)
#define CHECK_EQUAL(found, expected) quorb::CheckEqual((found), (expected), #found, __FILE__, __LINE__)
