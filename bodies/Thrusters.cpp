#include "Thrusters.h"

#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

#include "Dialogs.h"
#include "NumberText.h"

namespace quorb {

std::array<std::array<double, 4>, 26> ThrusterTable{};

namespace {

constexpr std::size_t kMostNumbers = 300;
constexpr int kNumbersEach = 6;

std::string WithoutMarks(std::string_view text) {
  std::string plain;
  for (const char c : text) {
    const bool isMark = c == '{' || c == '}' || c == ';' || c == ',';
    if (c != '\r' && c != '\n') plain += isMark ? ' ' : c;
  }
  return plain;
}

std::vector<double> NumbersOf(std::string_view text) {
  std::vector<double> numbers;
  while (numbers.size() < kMostNumbers) {
    const std::size_t start = text.find_first_not_of(' ');
    if (start == std::string_view::npos) break;
    text.remove_prefix(start);
    const std::string_view word = text.substr(0, text.find(' '));
    numbers.push_back(PlainNumber(word));
    text.remove_prefix(word.size());
  }
  return numbers;
}

void ShowWrongCount(int thrusters, std::size_t count) {
  const std::string prompt = " Wrong data count. Number of thruster =" + std::to_string(thrusters) +
                             "  but number data = " + std::to_string(count) +
                             "  which should be 6n=" + std::to_string(kNumbersEach * thrusters);
  CurrentDialogs().MessageBox(prompt, "Error", kBoxStopIcon);
}

void Store(const std::vector<double>& numbers) {
  ThrusterTable[0][0] = static_cast<double>(numbers.size());
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const std::size_t row = 1 + i / 3;
    if (row < ThrusterTable.size()) ThrusterTable[row][1 + i % 3] = numbers[i];
  }
}

}  // namespace

bool ReadThrusters(std::string_view text) {
  const std::vector<double> numbers = NumbersOf(WithoutMarks(text));
  const auto count = static_cast<double>(numbers.size());
  const int thrusters = static_cast<int>(std::nearbyint(count / kNumbersEach));
  if (kNumbersEach * thrusters != static_cast<int>(numbers.size())) {
    ShowWrongCount(thrusters, numbers.size());
    return false;
  }
  Store(numbers);
  return true;
}

}  // namespace quorb
