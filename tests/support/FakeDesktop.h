#pragma once

#include <string>
#include <vector>

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
  char DirectoryMark() const override { return mark; }
  std::string ProgramName() const override { return programName; }
  std::string DateText() const override { return date; }
  std::string TimeText() const override { return time; }
  void ShowDirectory(const std::string& directory) override { shown.push_back(directory); }
  int CopyText(const std::string& text) override {
    if (clipboardFault == kFaultNone) clipboard = text;
    return clipboardFault;
  }

  int year = 2026;
  int registrations = 0;
  char mark = '/';
  std::string programDirectory = "/opt/quorb";
  std::string dataDirectory = "/home/user/quorb-data";
  std::string programName = "QuorbExcelPro";
  std::string date = "20260703", time = "09:15:02";
  /// The directories that were shown; the clipboard, and the failure that it answers with.
  std::vector<std::string> shown;
  std::string clipboard;
  int clipboardFault = kFaultNone;
};

}  // namespace quorb
