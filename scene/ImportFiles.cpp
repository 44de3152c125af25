#include "ImportFiles.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "NumberText.h"
#include "PlotData.h"
#include "RunState.h"
#include "TextHelpers.h"

namespace quorb {

namespace {

constexpr int kHeadLines = 3;
constexpr double kMetresPerKilometre = 1000;

/// The text between two TABs; fields count from 1. Empty behind the last one.
std::string_view Field(std::string_view line, int number) {
  for (; number > 1; --number) {
    const std::size_t tab = line.find('\t');
    if (tab == std::string_view::npos) return {};
    line.remove_prefix(tab + 1);
  }
  return line.substr(0, line.find('\t'));
}

double NumberOf(std::string_view field) {
  std::string text(Trim(field));
  std::replace(text.begin(), text.end(), ',', '.');
  return PlainNumber(text);
}

void StoreEvent(std::int32_t row, std::string_view line) {
  const char mark = line.empty() ? ' ' : line.back();
  dataEvents.Set(row, 0, NumberOf(Field(line, 1)));
  dataEvents.Set(row, 1, mark == 'S' || mark == '1' ? 1 : 0);
}

void StorePoint(std::int32_t row, std::string_view line) {
  dataXYZT.Set(row, 0, NumberOf(Field(line, 1)));
  for (int axis = 1; axis <= 3; ++axis) {
    dataXYZT.Set(row, axis, NumberOf(Field(line, axis + 4)) / kMetresPerKilometre);
  }
  dataXYZT.Set(row, 4, 0);
}

/// Gives every line behind the head lines to `store` with its row, and the row of the last one to `lastRow`.
void ImportLines(const char* name, void (*store)(std::int32_t, std::string_view), std::int32_t& lastRow) {
  if (ImportDirectory.empty()) return;
  std::ifstream file(std::filesystem::path(ImportDirectory) / name, std::ios::binary);
  std::string line;
  for (int head = 0; head < kHeadLines; ++head)
    std::getline(file, line);
  std::int32_t rows = 0;
  while (rows < INT32_MAX && std::getline(file, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    store(rows, line);
    ++rows;
  }
  if (rows > 0) lastRow = rows - 1;
}

}  // namespace

void ImportEvents() {
  ImportLines("QuorbEvents.txt", StoreEvent, NbEvents);
}

void ImportPoints() {
  ImportLines("QuorbPoints.txt", StorePoint, LastPoint);
}

}  // namespace quorb
