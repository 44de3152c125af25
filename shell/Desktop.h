#pragma once

#include <string>

#include "Faults.h"

namespace quorb {

/// What the window asks of the desktop.
class Desktop {
 public:
  virtual ~Desktop() = default;

  /// The year of the clock.
  virtual int Year() const = 0;
  /// The directory that the program stands in, without a mark behind.
  virtual std::string ProgramDirectory() const = 0;
  /// The user's own directory for the program's data, without a mark behind.
  virtual std::string DataDirectory() const = 0;
  /// Ties the extension of data files to the program, for this user, where it is not yet. A failure is not
  /// told.
  virtual void RegisterFileType() = 0;
  /// The directory mark of file names.
  virtual char DirectoryMark() const = 0;

  /// The program's file name, without its directory.
  virtual std::string ProgramName() const { return "QuorbExcelPro"; }
  /// The date as "yyyymmdd", and the clock time in the system's short form with seconds ("09:15:02"). Both
  /// may hold the marks of the locale.
  virtual std::string DateText() const { return {}; }
  virtual std::string TimeText() const { return {}; }
  /// Shows a directory in the desktop's file manager, without giving it the focus. A failure is not told.
  virtual void ShowDirectory(const std::string&) {}
  /// Clears the clipboard and puts a text on it.
  /// @return the number of the failure, kFaultNone for none, kFaultClipboard when it is locked.
  virtual int CopyText(const std::string&) { return kFaultClipboard; }
};

/// The desktop of this process. Until one is set, the year is 0 and the directories are empty.
Desktop& CurrentDesktop();

/// Sets the desktop of this process; a null pointer takes it back. The caller keeps the ownership.
void SetDesktop(Desktop* desktop);

}  // namespace quorb
