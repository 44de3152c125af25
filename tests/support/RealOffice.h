#pragma once

#include <sys/types.h>

#include <memory>
#include <string>
#include <vector>

#include "OfficeTalk.h"
#include "OfficeUser.h"

namespace quorb {

/// A LibreOffice of the test's own, with its own profile and in the hands of a user of its own. It is ended
/// with the object.
class RealOffice {
 public:
  /// @param display an X display such as ":77"; empty runs the office without any.
  /// @param locale the language of its user interface and numbers, such as "de-DE"; empty for the usual.
  explicit RealOffice(const std::string& display = "", const std::string& locale = "");
  ~RealOffice();
  RealOffice(const RealOffice&) = delete;
  RealOffice& operator=(const RealOffice&) = delete;

  /// False when it did not come up; the log says why.
  bool Ready() const { return user_ != nullptr; }
  OfficeUser& User() { return *user_; }
  /// The user's hands go away: from here on there is no User. Two connections of one process to one office
  /// share what stands for the office's objects, so that a call of a link could wait on the user's
  /// connection, which nobody cuts.
  void LetGo() { user_.reset(); }
  /// The user's hands come back, with no document known; false when they cannot.
  bool TakeInHand();
  bool TakeUnderThisMask();

  /// Options for a link that sees this office only, and no other of this machine.
  CalcLinkOptions Options() const;
  /// The directory of those options: further sockets may be put there.
  const std::string& SocketDirectory() const { return socketDirectory_; }
  const RunningOffice& Running() const { return running_; }
  /// Where its user keeps macros in Python.
  std::string PythonMacros() const { return profile_ + "/user/Scripts/python"; }

  void Freeze();
  void Thaw();
  /// Ends it at once, as a crash does.
  void Kill();
  bool Runs() const;

 private:
  void Start(const std::string& display);
  bool FindSocket();

  std::string home_, profile_, socketDirectory_, userPipe_;
  pid_t starter_ = 0;
  RunningOffice running_;
  std::unique_ptr<OfficeUser> user_;
};

}  // namespace quorb
