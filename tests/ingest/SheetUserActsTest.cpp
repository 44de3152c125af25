// What the user does at every call of a load: edits, moves, goes to another sheet or workbook, ends the
// program.

#include "PutBackSpreadsheet.h"
#include "SheetSweepFixture.h"

namespace quorb {
namespace {

using testing::AnyOf;
using testing::Eq;

using SheetUserActsTest = SheetSweepFixture;

TEST_F(SheetUserActsTest, TheUserEditsAtAnyCall) {
  const int calls = CallsOfALoad();
  for (int call = 0; call < calls; ++call) {
    StartAnew();
    sheet.onCall = [&](const std::string&, int index) {
      if (index != call) return SheetFault();
      for (MemoryBook& book : sheet.books) {
        if (book.caption != "Book1.xlsx") continue;
        book.SetText(7, 7, "edited");
        book.SetNumber(2, 1, 99);
      }
      return SheetFault();
    };
    LoadFromSheet();
    ExpectLeftInOrder(std::to_string(call));
    EXPECT_EQ((sheet.books.front().cells[{7, 7}].value.text), "edited");
    EXPECT_THAT(dataXYZT[0][1], AnyOf(Eq(21), Eq(99))) << call;
    EXPECT_EQ(LastPoint, 2) << call;
  }
}

/// What the user does with a workbook, and every cell of it as a text.
using UserAct = std::function<void(MemoryBook& book)>;

std::string CellsOf(const MemoryBook& book) {
  std::string cells;
  for (const auto& [place, cell] : book.cells)
    cells += std::to_string(place.first) + "," + std::to_string(place.second) + cell.formula + "\n";
  return cells;
}

TEST_F(SheetUserActsTest, TheUserGoesElsewhereAtAnyCall) {
  const int calls = CallsOfALoad();
  const std::string newFile = WrittenFile();
  const std::string plainTitle =
      FileBehind([](const std::string& call) { return call == "SetActiveCellFormula =\"Orbit \"&B3"; });
  StartAnew();
  const std::string oldFile = WrittenFile();
  const UserAct acts[] = {[](MemoryBook& book) { book.Select(4, 5); },
                          [](MemoryBook& book) { book.Select(9, 9); },
                          [](MemoryBook& book) { book.caption = "Saved as.xlsx"; },
                          [](MemoryBook& book) { book.sheetName = "Renamed"; }};
  for (std::size_t act = 0; act < std::size(acts); ++act) {
    for (int call = 0; call < calls; ++call) {
      StartAnew();
      MemoryBook& book = sheet.books.front();
      const std::string before = CellsOf(book);
      sheet.onCall = [&](const std::string&, int index) {
        if (index == call) acts[act](book);
        return SheetFault();
      };
      window.onPause = [this] { window.SetTag(LoaderControl::Command6, "demo"); };
      LoadFromSheet();
      const std::string what = std::to_string(act) + " at " + std::to_string(call);
      const auto titles = BoxTitles();  // "Error" tells the formula, where its cell was not to be had
      const bool isTold = std::count(titles.begin(), titles.end(), "Error") > 0;
      if (!isTold) {
        EXPECT_EQ(CellsOf(book), before) << what;
      }
      EXPECT_FALSE(isTold && act < 3) << what;
      EXPECT_FALSE(sheet.HasScratch()) << what;
      std::string file = WrittenFile();
      for (const char* name : {"Saved as.xlsx\tSheet1", "Book1.xlsx\tRenamed"}) {
        const std::size_t place = file.find(name);
        if (place != std::string::npos) file.replace(place, std::string(name).size(), "Book1.xlsx\tSheet1");
      }
      EXPECT_THAT(file, AnyOf(newFile, oldFile, plainTitle)) << what;
    }
  }
}

TEST_F(SheetUserActsTest, TheUserGoesToAnotherSheetOrWorkbookAtAnyCall) {
  const int calls = CallsOfALoad();
  const std::string newFile = WrittenFile();
  StartAnew();
  const std::string oldFile = WrittenFile();
  for (const bool otherBook : {false, true}) {
    for (int call = 1; call < calls; ++call) {
      StartAnew();
      MemoryBook& book = sheet.books.front();
      MemoryBook& second = sheet.books.back();
      const std::string other = CellsOf(second);
      const std::string before = CellsOf(book);
      std::map<std::pair<int, int>, MemoryCell> firstSheet;
      sheet.onCall = [&](const std::string&, int index) {
        if (index != call) return SheetFault();
        if (otherBook) {
          for (auto place = sheet.books.begin(); place != sheet.books.end(); ++place) {
            if (&*place != &second) continue;
            sheet.books.splice(sheet.books.begin(), sheet.books, place);
            break;
          }
        } else {
          firstSheet = book.cells;
          book.cells.clear();
          book.SetNumber(2, 1, 1);
          book.sheetName = "Sheet2";
          book.Select(1, 1);
        }
        return SheetFault();
      };
      window.onPause = [this] { window.SetTag(LoaderControl::Command6, "demo"); };
      LoadFromSheet();
      const std::string what = (otherBook ? "book at " : "sheet at ") + std::to_string(call);
      EXPECT_EQ(CellsOf(second), other) << what;
      if (otherBook) {
        EXPECT_EQ(CellsOf(book), before) << what;
      } else {
        const bool isLent = firstSheet[{kFormulaRow, kFormulaColumn}].formula != kComputed;
        EXPECT_EQ(isLent, !dialogs.boxes.empty() && dialogs.boxes[0].title == "Error") << what;
        EXPECT_EQ(CellsOf(book), "2,11\n") << what << ": nothing is written to the other sheet";
      }
      EXPECT_FALSE(sheet.HasScratch()) << what;
      const bool isOfOther = WrittenFile().find("Other.xlsx\t") != std::string::npos;
      EXPECT_TRUE(otherBook && isOfOther ? call < 8 : WrittenFile() == newFile || WrittenFile() == oldFile)
          << what << WrittenFile();
    }
  }
}

TEST_F(SheetUserActsTest, TheProgramEndsAtAnyCall) {
  const int calls = CallsOfALoad();
  const std::string newFile = WrittenFile();
  StartAnew();
  const std::string oldFile = WrittenFile();
  for (int call = 1; call < calls; ++call) {
    StartAnew();
    const std::string before = sheet.UserState();
    std::string failed;
    sheet.onCall = [&](const std::string& name, int index) {
      if (index != call) return SheetFault();
      failed = name;
      PutBackSpreadsheet();
      EXPECT_EQ(sheet.UserState(), before) << call << " " << name;
      EXPECT_FALSE(sheet.HasScratch());
      EXPECT_FALSE(sheet.isAttached);
      EXPECT_EQ(files.begun, files.ended);
      return SheetFault();
    };
    LoadFromSheet();
    EXPECT_EQ(WrittenFile(), failed.rfind("ActiveWindowClose", 0) == 0 ? newFile : oldFile) << failed;
    EXPECT_EQ(sheet.UserState(), before) << failed;
  }
}

TEST_F(SheetUserActsTest, TheProgramEndsInAnyPause) {
  const std::vector<std::function<void()>> reasons = {
      [] {}, [this] { sheet.emptyAdds = 3; },
      [this] {
        sheet.books.front().cells.erase({kFormulaRow, kFormulaColumn});
      },
      [this] {
        sheet.onCall = [](const std::string& call, int) {
          return call == "CellsSelect 3 2" ? FaultOf(kFaultBusy) : SheetFault();
        };
      }};
  for (const auto& reason : reasons) {
    StartAnew();
    reason();
    const std::string before = sheet.UserState();
    int pauses = 0;
    window.onPause = [&] {
      sheet.onCall = nullptr;
      ++pauses;
      PutBackSpreadsheet();
      EXPECT_EQ(sheet.UserState(), before);
      EXPECT_FALSE(sheet.HasScratch());
      EXPECT_FALSE(sheet.isAttached);
    };
    LoadFromSheet();
    EXPECT_EQ(pauses, 1) << "nothing waits behind it";
    EXPECT_EQ(sheet.UserState(), before);
  }
  PutBackSpreadsheet();
}

}  // namespace
}  // namespace quorb
