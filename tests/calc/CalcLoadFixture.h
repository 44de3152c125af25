#pragma once

#include <array>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "CalcFixture.h"
#include "CommExcl.h"
#include "FakeLoaderWindow.h"
#include "MapSettingsStore.h"
#include "MemoryFiles.h"
#include "PlotData.h"
#include "RunState.h"
#include "ScriptedDialogs.h"
#include "UndatedFile.h"
#include "UserFlag.h"

namespace quorb {

/// Whole loads from the office of the suite. Whatever a load takes, the documents and the clipboard are as
/// they were behind it, and no document stays.
class CalcLoadFixture : public CalcFixture {
 protected:
  static constexpr const char* kLastFile = "/app/_QuorbExcelPro.qbv";

  CalcLoadFixture() {
    StartRunState();
    SpecTypedText.clear();
    AppDir = "/app/";
  }
  ~CalcLoadFixture() override {
    SetSheetLink(nullptr);
    StartRunState();
  }

  /// A spreadsheet with points in A2:C4 (x, y, z of row r: 10 r + 1, 2, 3), all of it saved.
  int OpenPlot(const std::string& formula, int formulaRow = 1, int formulaColumn = 20) {
    const int document = OpenSheet();
    EXPECT_TRUE(User().TypeNumbers(document, 0, 2, 1, 3, {21, 22, 23, 31, 32, 33, 41, 42, 43}).Good());
    if (!formula.empty()) Type(document, formulaRow, formulaColumn, formula);
    Settle(document, "T1");
    return document;
  }

  /// The user copies a cell, selects `range` and saves.
  void Settle(int document, const std::string& range, int sheet = 0) {
    EXPECT_TRUE(User().Select(document, sheet, "B2").Good());
    EXPECT_TRUE(User().Copy(document).Good());
    EXPECT_TRUE(User().Select(document, sheet, range).Good());
    EXPECT_TRUE(User().SetModified(document, false).Good());
  }

  virtual CalcLinkOptions Options() const { return office_->Options(); }

  /// Loads the plot from the office.
  void Load() {
    const std::vector<UserState> before = States();
    {
      CalcLink link(Options());
      SetSheetLink(&link);
      if (atStart_) atStart_(link);
      CommandFileMode = 0;
      DEJADRAW = DEJARESET = FileMode = 0;
      LoadPlot();
      SetSheetLink(nullptr);
    }
    const std::vector<UserState> after = States();
    ASSERT_EQ(after.size(), before.size());
    for (std::size_t i = 0; i < after.size(); ++i)
      ExpectSame(after[i], before[i]);
  }

  /// The title of a document's window, which comes to the front.
  std::string TitleOf(int document) {
    EXPECT_TRUE(User().ToFront(document).Good());
    const std::string title = StateOf(document).frontTitle;
    return title.substr(0, title.find(" - "));
  }

  /// The data file, with the date and time of its header as "Date D".
  std::string WrittenFile() const {
    const auto file = files_.contents.find(kLastFile);
    if (file == files_.contents.end()) return "none";
    return UndatedFile(file->second);
  }

  static std::string Header(const std::string& book, const std::string& sheet, const std::string& formula,
                            const std::string& scale, const std::string& title) {
    std::string doubled;
    for (const char c : formula)
      doubled += c == '"' ? std::string("\"\"") : std::string(1, c);
    return "\"From: \t" + book + "\t" + sheet + "\t" + doubled + "\t" + scale + "\t" + title +
           "\tDate D\tQuorbExcelPro data file\t\"" + std::string(16, '\t') + "\r\n";
  }

  /// A row of 17 fields that begins with these; "12" stands for "12.0000000000", and a field in brackets for
  /// what is in them.
  static std::string Row(const std::vector<std::string>& fields) {
    std::string row;
    for (std::size_t i = 0; i < 17; ++i) {
      if (i != 0) row += '\t';
      if (i >= fields.size() || fields[i].empty()) continue;
      const bool isText = fields[i].front() == '[';
      row += isText ? fields[i].substr(1, fields[i].size() - 2) : fields[i] + ".0000000000";
    }
    return row + "\r\n";
  }

  /// The rows of OpenPlot's points.
  static std::string PlotRows() {
    return Row({"21", "22", "23"}) + Row({"31", "32", "33"}) + Row({"41", "42", "43"});
  }

  /// A number below 10,000 as the file holds it.
  static std::string Field(double number) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%.10f", number);
    return text.data();
  }

  /// What happens when a load is about to begin.
  std::function<void(CalcLink&)> atStart_;
  MemoryFiles files_;
  FakeLoaderWindow window_;
  ScriptedDialogs dialogs_;
  MapSettingsStore settings_;

 private:
  std::vector<UserState> States() const {
    std::vector<UserState> states;
    for (const int document : Opened())
      states.push_back(StateOf(document));
    return states;
  }

  static void ExpectSame(const UserState& now, const UserState& before) {
    EXPECT_EQ(now.frontTitle, before.frontTitle);
    EXPECT_EQ(now.sheet, before.sheet);
    EXPECT_EQ(now.selection, before.selection);
    EXPECT_EQ(now.viewData, before.viewData);
    EXPECT_EQ(now.modified, before.modified);
    EXPECT_EQ(now.undo, before.undo);
    EXPECT_EQ(now.clipboard, before.clipboard);
    EXPECT_EQ(now.clipboardFormats, before.clipboardFormats);
    EXPECT_EQ(now.documents, before.documents);
    EXPECT_EQ(now.loaded, before.loaded);
  }
};

}  // namespace quorb
