#pragma once

#include <string>

#include "Desktop.h"

namespace quorb {

/// A desktop of a test's own making. It is the process's desktop for as long as it lives.
class FakeDesktop : public Desktop {
 public:
  FakeDesktop() { SetDesktop(this); }
  ~FakeDesktop() override { SetDesktop(nullptr); }
  FakeDesktop(const FakeDesktop&) = delete;
  FakeDesktop& operator=(const FakeDesktop&) = delete;

  int Year() const override { return year; }
  std::string ProgramDirectory() const override { return programDirectory; }
  std::string DataDirectory() const override { return dataDirectory; }
  void RegisterFileType() override { ++registrations; }
  char DirectoryMark() const override { return '/'; }

  int year = 2026;
  int registrations = 0;
  std::string programDirectory = "/opt/quorb";
  std::string dataDirectory = "/home/user/quorb-data";
};

}  // namespace quorb
