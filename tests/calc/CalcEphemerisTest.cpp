#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "CalcLoadFixture.h"
#include "ProgramRun.h"
#include "SheetWatcher.h"
#include "StateReaders.h"

namespace quorb {
namespace {

/// The states of the space station in a sheet: x, y, z and t from A2 on, 5,413 of them.
class CalcEphemeris : public CalcLoadFixture {
 protected:
  void SetUp() override {
    CalcLoadFixture::SetUp();
    if (std::filesystem::is_directory(QUORB_SHARED_DATA)) return;
    ASSERT_EQ(std::getenv("CI"), nullptr) << "the ephemerides are missing in " QUORB_SHARED_DATA;
    std::cout << "SKIPPED: there are no ephemerides in " QUORB_SHARED_DATA << '\n';
    GTEST_SKIP();
  }

  int OpenStates(const std::string& formula) {
    const ReadResult read = ReadStates(ContentsOfFile(QUORB_SHARED_DATA "/iss_2025_02_26.oem.xml"), states_);
    EXPECT_TRUE(read.Ok()) << read.error;
    std::vector<double> numbers;
    for (std::size_t i = 0; i < states_.x.size(); ++i)
      numbers.insert(numbers.end(), {states_.x[i], states_.y[i], states_.z[i], states_.time[i]});
    const int document = OpenSheet();
    Type(document, 1, 1, "X");
    Type(document, 1, 4, "T");
    EXPECT_TRUE(User().TypeNumbers(document, 0, 2, 1, 4, numbers).Good());
    Type(document, 1, 6, formula);
    Settle(document, "F1");
    return document;
  }

  std::string StateRows() const {
    std::string rows;
    for (std::size_t i = 0; i < states_.x.size(); ++i)
      rows += Field(states_.x[i]) + "\t" + Field(states_.y[i]) + "\t" + Field(states_.z[i]) + "\t" +
              Field(states_.time[i]) + std::string(13, '\t') + "\r\n";
    return rows;
  }

  StateTable states_;
};

// The first state is at noon of 26 February 2025, serial day 45714, at x = 236.607189722756 km.
TEST_F(CalcEphemeris, ItsStatesArePlotted) {
  const std::string formula = "=0.01+LEN(\"ISS kmday\")+MAX(A2:C5414)+MAX(D2:D5414)";
  const int document = OpenStates(formula);
  Load();
  EXPECT_EQ(WrittenFile().substr(WrittenFile().find("\r\n") + 2, 15), "236.6071897228\t");
  EXPECT_TRUE(WrittenFile() ==
              Header(TitleOf(document), "Sheet1", formula, "0.0100000000", "ISS kmday") + StateRows())
      << WrittenFile().substr(0, 400);
  EXPECT_EQ(LastPoint, 5412);
  EXPECT_EQ(dataXYZT[0][0], 45714.5);
  EXPECT_NEAR(dataXYZT[0][1], 2.366071897228, 1e-12);
}

TEST_F(CalcEphemeris, TheirEndIsLookedUp) {
  const int document = OpenStates("=0.01+LEN(\"ISS \" & D1 & \" kmday\") + MAX(A2:C2) + MAX(D2)");
  Settle(document, "B4000:D4100");
  Load();
  EXPECT_TRUE(WrittenFile() == Header(TitleOf(document), "Sheet1",
                                      "=0.01+LEN(\"ISS T kmday\")+MAX(A2:C5414)+MAX(D2)", "0.0100000000",
                                      "ISS T kmday") +
                                   StateRows())
      << WrittenFile().substr(0, 400);
  EXPECT_EQ(LastPoint, 5412);
}

TEST_F(CalcEphemeris, AnEditOfTheFormulaIsPlottedAtTheNextPoll) {
  const int document = OpenStates("=0.01+LEN(\"ISS kmday\")+MAX(A2:C5414)+MAX(D2:D5414)");
  CalcLink link(office_->Options());
  SetSheetLink(&link);
  USERFLAG.InteractiveExcel = 1.0;
  LoadPlot();
  ASSERT_EQ(LastPoint, 5412);
  WatchSheet();
  const int loads = LoadsStarted;
  WatchSheet();
  EXPECT_EQ(LoadsStarted, loads) << "nothing has changed";
  Type(document, 1, 6, "=0.01+LEN(\"ISS kmday\")+MAX(A2:C1001)+MAX(D2:D1001)");
  WatchSheet();
  EXPECT_EQ(LoadsStarted, loads + 1);
  EXPECT_EQ(LastPoint, 999);
}

}  // namespace
}  // namespace quorb
