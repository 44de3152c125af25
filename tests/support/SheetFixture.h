#pragma once

#include <string>
#include <vector>

#include "LoadFixture.h"
#include "MapSettingsStore.h"
#include "MemorySpreadsheet.h"
#include "UndatedFile.h"

namespace quorb {

/// A fresh run with a running spreadsheet in memory, and no data file.
class SheetFixture : public LoadFixture {
 protected:
  static constexpr const char* kLastFile = "/app/_QuorbExcelPro.qbv";
  static constexpr const char* kFormula = "=0.01+LEN(\"Orbit kmday\")+MAX(A2:C4)";
  static constexpr int kFormulaRow = 1, kFormulaColumn = 20;

  SheetFixture() {
    dialogs.pumpLimit = 100000;
    SpecTypedText.clear();
  }

  /// A workbook with three points from row 2 on and the formula in T1, which is selected.
  MemoryBook& AddPlotBook(const std::string& formula = kFormula, const std::string& caption = "Book1.xlsx") {
    MemoryBook& book = sheet.AddBook(caption);
    for (int row = 2; row <= 4; ++row) {
      for (int column = 1; column <= 3; ++column)
        book.SetNumber(row, column, row * 10 + column);
    }
    book.SetFormula(kFormulaRow, kFormulaColumn, formula, 31);
    book.Select(kFormulaRow, kFormulaColumn);
    return book;
  }

  /// A file of the load before, with one point.
  void PutLastFile() {
    files.contents[kLastFile] = Header("=2+LEN(\"Before kmday\")+MAX(A2:C2)") + "7\t8\t9\t\r\n";
  }

  void LoadFromSheet() {
    CommandFileMode = 0;
    DEJADRAW = DEJARESET = FileMode = 0;
    LoadPlot();
  }

  /// The data file that was written, with the date and time of its header as "Date D".
  std::string WrittenFile() const {
    const auto file = files.contents.find(kLastFile);
    if (file == files.contents.end()) return "none";
    return UndatedFile(file->second);
  }

  /// The header line of such a file.
  static std::string WrittenHeader(const std::string& formula, const std::string& scale,
                                   const std::string& title,
                                   const std::string& source = "Book1.xlsx\tSheet1") {
    std::string doubled;
    for (const char c : formula)
      doubled += c == '"' ? std::string("\"\"") : std::string(1, c);
    return "\"From: \t" + source + "\t" + doubled + "\t" + scale + "\t" + title +
           "\tDate D\tQuorbExcelPro data file\t\"" + std::string(16, '\t') + "\r\n";
  }

  /// A row of 17 fields that begins with these.
  static std::string WrittenRow(const std::vector<std::string>& fields) {
    std::string row;
    for (std::size_t i = 0; i < 17; ++i) {
      if (i != 0) row += '\t';
      if (i < fields.size()) row += fields[i];
    }
    return row + "\r\n";
  }

  static std::string Cell(int number) { return std::to_string(number) + ".0000000000"; }

  /// The file of AddPlotBook's workbook.
  static std::string FileOfPlotBook() {
    return WrittenHeader(kFormula, "0.0100000000", "Orbit kmday") +
           WrittenRow({Cell(21), Cell(22), Cell(23)}) + WrittenRow({Cell(31), Cell(32), Cell(33)}) +
           WrittenRow({Cell(41), Cell(42), Cell(43)});
  }

  /// The titles of the boxes that were shown.
  std::vector<std::string> BoxTitles() const {
    std::vector<std::string> titles;
    for (const auto& box : dialogs.boxes)
      titles.push_back(box.title);
    return titles;
  }

  MemorySpreadsheet sheet;
  MapSettingsStore settings;
};

}  // namespace quorb
