#include "PlotData.h"

#include <algorithm>
#include <cstring>

namespace quorb {

NumberTable<5> dataXYZT;
std::bitset<kRowBound> timeAssigned;
NumberTable<2> dataEvents;
EventLogTable dataEventLog;
TextColumn dataPenUpLabel;
NumberTable<5> dataQuater;
NumberTable<2> dataSApY;
NumberTable<2> dataSAmY;
NumberTable<2> dataValZ;

std::int32_t LastPoint = 0;
std::int32_t NbEvents = 0;
double NbQuater = 0, NbSApY = 0, NbSAmY = 0, NbValZ = 0;
double ValZMax = 0, ValZMin = 0, TimeMax = 0, TimeMin = 0;
double FactorScale = 1.0;
std::string MessageUserToPlot;

bool TextColumn::Set(std::int64_t row, std::string_view text) {
  if (row < 0 || row >= kRowBound) return false;
  rowsWritten_ = std::max(rowsWritten_, row + 1);
  if (text.empty()) {
    if (place_[row] != 0) place_[row] = 0;
    return true;
  }
  if (lastPlace_ == 0 || TextAt(lastPlace_) != text) {
    if (arena_.size() + sizeof(std::uint32_t) + text.size() >= UINT32_MAX) return false;
    lastPlace_ = static_cast<std::uint32_t>(arena_.size()) + 1;
    const auto length = static_cast<std::uint32_t>(text.size());
    arena_.append(reinterpret_cast<const char*>(&length), sizeof length);
    arena_.append(text);
  }
  place_[row] = lastPlace_;
  return true;
}

std::string_view TextColumn::operator[](std::int64_t row) const {
  if (row < 0 || row >= rowsWritten_ || place_[row] == 0) return {};
  return TextAt(place_[row]);
}

std::string_view TextColumn::TextAt(std::uint32_t place) const {
  std::uint32_t length = 0;
  std::memcpy(&length, arena_.data() + place - 1, sizeof length);
  return {arena_.data() + place - 1 + sizeof length, length};
}

void TextColumn::Restart() {
  std::fill_n(place_, rowsWritten_, 0U);
  rowsWritten_ = 0;
  lastPlace_ = 0;
  arena_.clear();
}

void RaiseFlatMaximum(double& maximum, double minimum) {
  if (maximum == 0 && minimum == 0) {
    maximum = 1;
  } else if (maximum == minimum) {
    maximum *= 1.01;
  }
}

}  // namespace quorb
