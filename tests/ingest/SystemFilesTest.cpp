#include "SystemFiles.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "LoadFixture.h"
#include "OrdinaryUser.h"
#include "TemporaryDirectory.h"

namespace quorb {
namespace {

void WriteFile(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

class SystemFilesTest : public testing::Test {
 protected:
  int FailureOf(const std::string& path) {
    int errorNumber = -1;
    EXPECT_EQ(systemFiles.Map(path, errorNumber), nullptr) << path;
    return errorNumber;
  }

  std::unique_ptr<MappedFile> Open(const std::string& path) {
    int errorNumber = -1;
    auto file = systemFiles.Map(path, errorNumber);
    EXPECT_EQ(errorNumber, 0) << path;
    return file;
  }

  TemporaryDirectory directory;
  SystemFiles systemFiles;
};

TEST_F(SystemFilesTest, AFileIsGivenWhole) {
  WriteFile(directory.File("a.qbv"), std::string("a\0b\r\n", 5));
  const auto file = Open(directory.File("a.qbv"));
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(file->Bytes(), std::string_view("a\0b\r\n", 5));
  EXPECT_FALSE(file->LostPart());
  EXPECT_FALSE(file->Shrunk());
}

TEST_F(SystemFilesTest, AnEmptyFileHasNoBytes) {
  WriteFile(directory.File("empty"), "");
  const auto file = Open(directory.File("empty"));
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(file->Bytes(), "");
  EXPECT_FALSE(file->Shrunk());
  EXPECT_FALSE(file->LostPart());
}

TEST_F(SystemFilesTest, AMissingFileIs53AndAMissingDirectoryIs76) {
  EXPECT_EQ(FailureOf(directory.File("none.qbv")), 53);
  EXPECT_EQ(FailureOf(directory.File("none/a.qbv")), 76);
  EXPECT_EQ(FailureOf("none.qbv"), 53);
  WriteFile(directory.File("a"), "x");
  EXPECT_EQ(FailureOf(directory.File("a/b.qbv")), 76);
}

TEST_F(SystemFilesTest, ADirectoryIs75) {
  EXPECT_EQ(FailureOf(directory.File("")), 75);
}

TEST_F(SystemFilesTest, ABadNameIs52) {
  EXPECT_EQ(FailureOf(""), 52);
  EXPECT_EQ(FailureOf(std::string("a\0b", 3)), 52);
  EXPECT_EQ(FailureOf(directory.File(std::string(300, 'x'))), 52);
}

TEST_F(SystemFilesTest, AFileWithoutPermissionIs70) {
  const std::string path = directory.File("closed.qbv");
  WriteFile(path, "x");
  chmod(path.c_str(), 0);
  const OrdinaryUser user;
  EXPECT_EQ(FailureOf(path), 70);
}

TEST_F(SystemFilesTest, APipeWithoutAWriterIs75AndDoesNotHang) {
  const std::string path = directory.File("pipe");
  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
  EXPECT_EQ(FailureOf(path), 75);
}

TEST_F(SystemFilesTest, ADeviceIs75) {
  EXPECT_EQ(FailureOf("/dev/zero"), 75);
}

TEST_F(SystemFilesTest, BothDirectoryMarksAreTaken) {
  std::filesystem::create_directories(directory.File("sub"));
  WriteFile(directory.File("sub/a.qbv"), "x");
  std::string path = directory.File("sub\\a.qbv");
  EXPECT_NE(Open(path), nullptr);
  EXPECT_EQ(FailureOf(directory.File("none\\a.qbv")), 76);
  EXPECT_EQ(FailureOf(directory.File("sub\\none.qbv")), 53);
}

TEST_F(SystemFilesTest, AFileWhoseNameHoldsABackslashIsFoundByIt) {
  WriteFile(directory.File("a\\b"), "x");
  EXPECT_NE(Open(directory.File("a\\b")), nullptr);
}

TEST_F(SystemFilesTest, NoDescriptorIsLeftOpen) {
  WriteFile(directory.File("a"), "x");
  WriteFile(directory.File("empty"), "");
  const auto openCount = [] {
    std::size_t count = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator("/proc/self/fd"))
      ++count;
    return count;
  };
  const std::size_t before = openCount();
  for (int i = 0; i < 3; ++i) {
    Open(directory.File("a"));
    Open(directory.File("empty"));
    FailureOf(directory.File(""));
    FailureOf(directory.File("none"));
  }
  EXPECT_EQ(openCount(), before);
}

TEST_F(SystemFilesTest, AFileCutToNothingReadsAsZeroBytesAndSaysSo) {
  const std::string path = directory.File("a");
  WriteFile(path, std::string(100000, 'x'));
  const auto file = Open(path);
  ASSERT_EQ(truncate(path.c_str(), 0), 0);
  EXPECT_FALSE(file->LostPart());
  EXPECT_TRUE(file->Shrunk());
  EXPECT_EQ(file->Bytes()[0], '\0');
  EXPECT_EQ(file->Bytes()[99999], '\0');
  EXPECT_TRUE(file->LostPart());
}

TEST_F(SystemFilesTest, AFileCutInTheMiddleKeepsItsHead) {
  const std::string path = directory.File("a");
  WriteFile(path, std::string(100000, 'x'));
  const auto file = Open(path);
  ASSERT_EQ(truncate(path.c_str(), 50000), 0);
  EXPECT_EQ(file->Bytes()[49999], 'x');
  EXPECT_FALSE(file->LostPart());
  EXPECT_EQ(file->Bytes()[50000], '\0');
  EXPECT_EQ(file->Bytes()[99999], '\0');
  EXPECT_EQ(file->Bytes()[49999], 'x');
  EXPECT_TRUE(file->LostPart());
}

TEST_F(SystemFilesTest, ALossWithinTheLastPageIsSeenToo) {
  const std::string path = directory.File("a");
  WriteFile(path, "1\t2\t3\r\n4\t5\t6\r\n");
  const auto file = Open(path);
  ASSERT_EQ(truncate(path.c_str(), 9), 0);
  EXPECT_TRUE(file->Shrunk());
  EXPECT_EQ(file->Bytes().substr(0, 9), "1\t2\t3\r\n4\t");
}

TEST_F(SystemFilesTest, AFreshFileIsNotSuspectedForAnEarlierOne) {
  const std::string path = directory.File("a");
  WriteFile(path, std::string(100000, 'x'));
  {
    const auto file = Open(path);
    ASSERT_EQ(truncate(path.c_str(), 0), 0);
    EXPECT_EQ(file->Bytes()[0], '\0');
  }
  WriteFile(path, "whole");
  const auto file = Open(path);
  EXPECT_EQ(file->Bytes(), "whole");
  EXPECT_FALSE(file->LostPart());
  EXPECT_FALSE(file->Shrunk());
}

using SystemFilesDeathTest = SystemFilesTest;
TEST_F(SystemFilesDeathTest, AnyOtherBusFaultStillEndsTheProcess) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto file = Open("/proc/self/exe");
  EXPECT_DEATH(raise(SIGBUS), "");
}

// ---- loads ----------------------------------------------------------------------------------------------

class LoadRealFileTest : public LoadFixture {
 protected:
  LoadRealFileTest() { SetFileAccess(&systemFiles); }

  /// Loads a file that the action changes when it is open and not yet read.
  void LoadChanged(const std::string& bytes, const std::function<void(const std::string& path)>& change) {
    const std::string path = directory.File("plot.qbv");
    WriteFile(path, bytes);
    ChangingFiles changing(systemFiles, change);
    SetFileAccess(&changing);
    LoadNamed(path);
    SetFileAccess(&systemFiles);
  }

  class ChangingFiles : public FileAccess {
   public:
    ChangingFiles(FileAccess& real, std::function<void(const std::string& path)> change)
        : real_(real), change_(std::move(change)) {}
    std::unique_ptr<MappedFile> Map(const std::string& path, int& errorNumber) override {
      auto file = real_.Map(path, errorNumber);
      change_(path);
      return file;
    }

   private:
    FileAccess& real_;
    std::function<void(const std::string& path)> change_;
  };

  TemporaryDirectory directory;
  SystemFiles systemFiles;
};

TEST_F(LoadRealFileTest, AFileOfTheDiskIsLoaded) {
  WriteFile(directory.File("plot.qbv"), Header(Formula("", "kmday", 2)) + "1\t2\t3\t4\r\n5\t6\t7\t8\r\n");
  LoadNamed(directory.File("plot.qbv"));
  EXPECT_EQ(LastPoint, 1);
  EXPECT_EQ(dataXYZT[1][3], 7);
}

TEST_F(LoadRealFileTest, AFileThatShrinksWhileItIsMappedGivesTheRowsThatAreLeft) {
  const std::string header = Header(Formula("", "kmday", 2));
  std::string rows;
  for (int i = 0; i < 20000; ++i)
    rows += "1\t2\t3\t4\r\n";
  const std::size_t kept = header.size() + std::size_t{10000} * 9 + 4;
  LoadChanged(header + rows, [&](const std::string& path) {
    ASSERT_EQ(truncate(path.c_str(), static_cast<off_t>(kept)), 0);
  });
  EXPECT_EQ(LastPoint, 9999);
  EXPECT_EQ(
      window.log.back(),
      "The data file became shorter while it was read: rows are missing behind row 10000. Load it again.");
  EXPECT_EQ(LoadBusy, 0);
}

TEST_F(LoadRealFileTest, ASmallFileThatShrinksGivesTheRowsThatAreLeft) {
  const std::string header = Header(Formula("", "kmday", 2));
  LoadChanged(header + "1\t2\t3\t4\r\n5\t6\t7\t8\r\n", [&](const std::string& path) {
    ASSERT_EQ(truncate(path.c_str(), static_cast<off_t>(header.size() + 11)), 0);
  });
  EXPECT_EQ(LastPoint, 0);
  EXPECT_EQ(window.log.back(),
            "The data file became shorter while it was read: rows are missing behind row 1. Load it again.");
}

TEST_F(LoadRealFileTest, AFileCutToNothingGivesTheBuiltInPlotAndTheLogTellsWhy) {
  LoadChanged(Header(Formula("", "kmday", 2)) + "1\t2\t3\t4\r\n",
              [](const std::string& path) { ASSERT_EQ(truncate(path.c_str(), 0), 0); });
  EXPECT_EQ(LastLoad().rows, 0);
  EXPECT_EQ(FactorScale, 1.0 / 1000);
  EXPECT_EQ(window.log.back(),
            "The data file became shorter while it was read: rows are missing behind row 0. Load it again.");
}

TEST_F(LoadRealFileTest, AFileThatIsDeletedWhileItIsMappedIsLoadedWhole) {
  LoadChanged(Header(Formula("", "kmday", 2)) + "1\t2\t3\t4\r\n",
              [](const std::string& path) { ASSERT_EQ(unlink(path.c_str()), 0); });
  EXPECT_EQ(LastLoad().rows, 1);
}

// ---- writing ----------------------------------------------------------------------------------------------

std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::size_t EntriesOf(const std::string& directory) {
  const std::filesystem::directory_iterator entries(directory);
  return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

TEST_F(SystemFilesTest, ACommittedFileTakesThePlaceOfTheOldOne) {
  const std::string path = directory.File("new.qbv");
  WriteFile(path, "old");
  auto file = systemFiles.Create(path);
  ASSERT_NE(file, nullptr);
  EXPECT_TRUE(file->Write("one\r\n"));
  EXPECT_TRUE(file->Write("two"));
  EXPECT_EQ(BytesOf(path), "old");
  EXPECT_TRUE(file->Commit());
  EXPECT_EQ(BytesOf(path), "one\r\ntwo");
  EXPECT_FALSE(file->Commit()) << "once";
  file.reset();
  EXPECT_EQ(BytesOf(path), "one\r\ntwo");
}

TEST_F(SystemFilesTest, AFileThatIsNotCommittedLeavesNoTrace) {
  const std::string path = directory.File("new.qbv");
  WriteFile(path, "old");
  const std::size_t before = EntriesOf(directory.File(""));
  auto file = systemFiles.Create(path);
  ASSERT_NE(file, nullptr);
  EXPECT_TRUE(file->Write("one"));
  EXPECT_EQ(EntriesOf(directory.File("")), before + 1);
  file.reset();
  EXPECT_EQ(BytesOf(path), "old");
  EXPECT_EQ(EntriesOf(directory.File("")), before);
}

TEST_F(SystemFilesTest, AFileInTheUsersDirectoryMakesThatDirectory) {
  const std::string path = directory.File("deep/er/new.qbv");
  auto file = systemFiles.Create(path);
  ASSERT_NE(file, nullptr);
  EXPECT_TRUE(file->Commit());
  EXPECT_EQ(BytesOf(path), "");
}

TEST_F(SystemFilesTest, ASymbolicLinkStaysAndItsFileIsReplaced) {
  std::filesystem::create_directory(directory.File("real"));
  WriteFile(directory.File("real/data.qbv"), "old");
  const std::string link = directory.File("link.qbv");
  std::filesystem::create_symlink("real/data.qbv", link);
  auto file = systemFiles.Create(link);
  ASSERT_NE(file, nullptr);
  EXPECT_TRUE(file->Write("new"));
  EXPECT_TRUE(file->Commit());
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_EQ(BytesOf(directory.File("real/data.qbv")), "new");
  EXPECT_EQ(EntriesOf(directory.File("real")), 1U);
}

TEST_F(SystemFilesTest, TheNewFileHasTheModeOfTheOldOne) {
  const std::string path = directory.File("new.qbv");
  WriteFile(path, "old");
  ASSERT_EQ(chmod(path.c_str(), 0604), 0);
  auto file = systemFiles.Create(path);
  ASSERT_NE(file, nullptr);
  EXPECT_TRUE(file->Commit());
  struct stat status = {};
  ASSERT_EQ(stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0604U);
}

TEST_F(SystemFilesTest, PartsOfProcessesThatAreGoneAreRemoved) {
  const std::string path = directory.File("new.qbv");
  const std::string gone = path + ".2147483647.part";
  const std::string living = path + "." + std::to_string(getppid()) + ".part";
  const std::string other = directory.File("other.qbv.2147483647.part");
  const std::string noNumber = path + ".7x.part";
  for (const std::string& part : {gone, living, other, noNumber})
    WriteFile(part, "x");
  systemFiles.Create(path).reset();
  EXPECT_FALSE(std::filesystem::exists(gone));
  EXPECT_TRUE(std::filesystem::exists(living));
  EXPECT_TRUE(std::filesystem::exists(other));
  EXPECT_TRUE(std::filesystem::exists(noNumber));
}

TEST_F(SystemFilesTest, WhatCannotBeWrittenOrNamedIsAFailure) {
  EXPECT_EQ(systemFiles.Create("/proc/none/new.qbv"), nullptr);
  const std::string path = directory.File("taken");
  std::filesystem::create_directory(path);
  WriteFile(path + "/inside", "x");
  auto file = systemFiles.Create(path);
  ASSERT_NE(file, nullptr);
  EXPECT_TRUE(file->Write("one"));
  EXPECT_FALSE(file->Commit());
  EXPECT_TRUE(std::filesystem::is_directory(path));
}

}  // namespace
}  // namespace quorb
