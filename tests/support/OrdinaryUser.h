#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

namespace quorb {

/// Another user's rights for as long as it lives: nobody's, where the tests run as root, who may write
/// everywhere.
class OrdinaryUser {
 public:
  OrdinaryUser() : wasRoot_(geteuid() == 0) {
    const uid_t nobody = 65534;
    if (wasRoot_) Become(nobody);
  }
  ~OrdinaryUser() {
    if (wasRoot_) Become(0);
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

 private:
  // access() asks for the real user, everything else for the effective one.
  static void Become(uid_t user) { EXPECT_EQ(setresuid(user, user, 0), 0); }

  bool wasRoot_;
};

}  // namespace quorb
