#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

#include "CommExcl.h"
#include "FakeLoaderWindow.h"
#include "MemoryFiles.h"
#include "NumberText.h"
#include "PlotData.h"
#include "RunState.h"
#include "ScriptedDialogs.h"
#include "UserFlag.h"

namespace quorb {

/// A fresh run that loads files of memory: nothing of an earlier test is in the first rows of the arrays.
class LoadFixture : public testing::Test {
 protected:
  LoadFixture() {
    SetRegionalSettings(nullptr);
    StartRunState();
    ClearFirstRows();
    AppDir = "/app/";
  }
  ~LoadFixture() override { StartRunState(); }

  static constexpr int kRowsInTests = 64;
  static constexpr const char* kName = "/data/plot.qbv";

  /// A formula with the given head, such as "0.01 + ", the title, and ranges of rows 2 to 9.
  static std::string Formula(const std::string& scale, const std::string& title, int ranges = 1) {
    constexpr std::array<const char*, 7> kRanges = {"A2:C9", "D2:D9", "E2:F9", "G2:K9",
                                                    "L2:M9", "N2:O9", "P2:Q9"};
    std::string formula = "= " + scale + "LEN(\"" + title + "\")";
    for (std::size_t i = 0; i < static_cast<std::size_t>(ranges); ++i)
      formula += std::string(" + MAX(") + kRanges[i] + ")";
    return formula;
  }

  /// The header line with its nine fields.
  static std::string Header(const std::string& formula, const std::string& scale = "",
                            const std::string& title = "") {
    return "From: \tBook1\tSheet1\t" + formula + "\t" + scale + "\t" + title +
           "\tDate 2024/05/06 07:08:09\tmark\t\r\n";
  }

  /// Loads a file of these bytes by its name.
  void Load(const std::string& bytes) {
    files.contents[kName] = bytes;
    LoadNamed(kName);
  }

  void LoadNamed(const std::string& name) {
    CommandFileMode = 1;
    CommandFileName = name;
    DEJADRAW = DEJARESET = FileMode = 0;
    LoadPlot();
  }

  /// Loads rows under the header of a plot without scale, in kilometres and days where the title says nothing
  /// else.
  void LoadRows(const std::string& rows, const std::string& title = "kmday", int ranges = 1) {
    Load(Header(Formula("", title, ranges)) + rows);
  }

  template <int Columns>
  static std::vector<double> Row(const NumberTable<Columns>& table, std::int64_t row) {
    return std::vector<double>(table[row], table[row] + Columns);
  }

  static std::vector<double> Point(std::int64_t row) { return Row(dataXYZT, row); }

  MemoryFiles files;
  FakeLoaderWindow window;
  ScriptedDialogs dialogs;

 private:
  template <int Columns>
  static void ClearFirstRows(NumberTable<Columns>& table) {
    for (int row = 0; row < kRowsInTests; ++row)
      std::fill_n(table[row], Columns, 0.0);
  }

  static void ClearFirstRows() {
    ClearFirstRows(dataXYZT);
    ClearFirstRows(dataEvents);
    ClearFirstRows(dataEventLog.time);
    ClearFirstRows(dataQuater);
    ClearFirstRows(dataSApY);
    ClearFirstRows(dataSAmY);
    ClearFirstRows(dataValZ);
    dataEventLog.text.Restart();
    dataPenUpLabel.Restart();
    timeAssigned.reset();
  }
};

/// Rows of text, each with the line end of a written file.
inline std::string Lines(const std::vector<std::string>& rows) {
  std::string text;
  for (const std::string& row : rows)
    text += row + "\r\n";
  return text;
}

}  // namespace quorb
