#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "OrdinaryUser.h"
#include "SystemFiles.h"
#include "TemporaryDirectory.h"

namespace quorb {
namespace {

namespace fs = std::filesystem;

/// A program directory that is only for reading, and a user without any data yet.
class RealLocationTest : public testing::Test {
 protected:
  RealLocationTest() {
    fs::permissions(run.File(""), fs::perms::all);
    fs::create_directory(program);
    fs::permissions(program, fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read |
                                 fs::perms::others_exec);
    setenv("XDG_DATA_HOME", data.c_str(), 1);
  }
  ~RealLocationTest() override {
    if (hadData) {
      setenv("XDG_DATA_HOME", formerData.c_str(), 1);
    } else {
      unsetenv("XDG_DATA_HOME");
    }
  }

  const bool hadData = std::getenv("XDG_DATA_HOME") != nullptr;
  const std::string formerData = hadData ? std::getenv("XDG_DATA_HOME") : "";
  TemporaryDirectory run;
  const std::string program = run.File("program"), data = run.File("share");
  SystemFiles files;
};

TEST_F(RealLocationTest, AFileOfADirectoryThatIsOnlyReadCanBeWrittenAtItsRealLocation) {
  const OrdinaryUser user;
  const std::string real = files.RealLocation(program + "/image.bmp");
  EXPECT_EQ(real, data + "/QuorbExcelPro/image.bmp");
  EXPECT_TRUE(fs::is_directory(data + "/QuorbExcelPro"));
  EXPECT_TRUE(std::ofstream(real) << "picture");
}

TEST_F(RealLocationTest, AFileOfADirectoryThatCanBeWrittenStandsThere) {
  const OrdinaryUser user;
  EXPECT_EQ(files.RealLocation(run.File("image.bmp")), run.File("image.bmp"));
  EXPECT_FALSE(fs::exists(data));
}

TEST_F(RealLocationTest, ADirectoryThatIsMissingStaysMissing) {
  const OrdinaryUser user;
  EXPECT_EQ(files.RealLocation(run.File("none/image.bmp")), run.File("none/image.bmp"));
  EXPECT_FALSE(fs::exists(run.File("none")));
  EXPECT_FALSE(fs::exists(data));
}

}  // namespace
}  // namespace quorb
