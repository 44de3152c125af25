#include "SystemDirectories.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <regex>

#include "TemporaryDirectory.h"

namespace quorb {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SystemDirectoriesTest : public testing::Test {
 protected:
  void Write(const std::string& name, const std::string& bytes = "x") {
    std::ofstream(directory.File(name)) << bytes;
  }

  const TemporaryDirectory directory;
  const SystemDirectories directories;
  DirectoryContents contents;
  FileDescription file;
};

TEST_F(SystemDirectoriesTest, NamesAreSortedWithoutRegardToCase) {
  for (const char* name : {"b.qbv", "A.qbv", "a.qbv", "C.qbv"})
    Write(name);
  for (const char* name : {"orbits", "Images"})
    std::filesystem::create_directory(directory.File(name));
  ASSERT_TRUE(directories.Read(directory.File(""), contents));
  EXPECT_THAT(contents.files, ElementsAre("A.qbv", "a.qbv", "b.qbv", "C.qbv"));
  EXPECT_THAT(contents.directories, ElementsAre("Images", "orbits"));
}

TEST_F(SystemDirectoriesTest, HiddenFilesAndWhatIsNoFileStayOut) {
  Write(".hidden");
  std::filesystem::create_directory(directory.File(".settings"));
  ASSERT_EQ(mkfifo(directory.File("pipe").c_str(), 0600), 0);
  std::filesystem::create_symlink("nowhere", directory.File("broken"));
  ASSERT_TRUE(directories.Read(directory.File(""), contents));
  EXPECT_THAT(contents.files, IsEmpty());
  EXPECT_THAT(contents.directories, IsEmpty());
  EXPECT_FALSE(directories.Describe(directory.File("pipe"), file));
}

TEST_F(SystemDirectoriesTest, WhatIsNoDirectoryCannotBeRead) {
  Write("plot.qbv");
  contents.files = {"before"};
  EXPECT_FALSE(directories.Read(directory.File("gone"), contents));
  EXPECT_FALSE(directories.Read(directory.File("plot.qbv"), contents));
  EXPECT_FALSE(directories.Read("", contents));
  EXPECT_FALSE(directories.Read(std::string(10000, 'x'), contents));
  EXPECT_THAT(contents.files, IsEmpty());
}

TEST_F(SystemDirectoriesTest, AFileTellsItsLengthAndTheTimeOfItsChange) {
  Write("plot.qbv", "12345");
  ASSERT_TRUE(directories.Describe(directory.File("plot.qbv"), file));
  EXPECT_EQ(file.bytes, 5u);
  EXPECT_TRUE(std::regex_match(
      file.changed, std::regex("20[0-9]{2}/[01][0-9]/[0-3][0-9] [0-2][0-9]:[0-5][0-9]:[0-5][0-9]")))
      << file.changed;
}

TEST_F(SystemDirectoriesTest, WhatIsNoFileIsNotDescribed) {
  EXPECT_FALSE(directories.Describe(directory.File("gone"), file));
  EXPECT_FALSE(directories.Describe(directory.File(""), file));
  EXPECT_FALSE(directories.Describe("", file));
}

TEST_F(SystemDirectoriesTest, TheChooserStartsInADirectoryThatCanBeRead) {
  EXPECT_TRUE(directories.Read(directories.Start(), contents));
  EXPECT_THAT(directories.Drives(), ElementsAre("/"));
}

}  // namespace
}  // namespace quorb
