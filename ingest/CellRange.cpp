#include "CellRange.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "Dialogs.h"
#include "Faults.h"
#include "NumberPicture.h"
#include "NumberText.h"
#include "TextHelpers.h"

namespace quorb {
namespace {

constexpr std::size_t kLongestRange = 100;
constexpr std::size_t kLongestRow = 9;  // digits; two such rows can be added
constexpr int kLastColumn = 256;
constexpr int kLastRow = 65536;
constexpr double kMissingColumn = 1.255;
constexpr int kBeforeLetterA = 64;

using Characters = std::vector<std::uint32_t>;  // codes

// ---- characters -------------------------------------------------------------------------------------------

bool IsLetter(std::uint32_t code) {
  return code >= 'A' && code <= 'Z';
}

bool IsDigit(std::uint32_t code) {
  return code >= '0' && code <= '9';
}

// The code of the character at the head of the text; the character is taken off. A byte that belongs to none
// is its own code.
std::uint32_t TakeCharacter(std::string_view& text) {
  const std::size_t length = Utf8SequenceLength(text, 0);
  const auto lead = static_cast<unsigned char>(text[0]);
  std::uint32_t code = length > 1 ? lead & (0x7FU >> length) : lead;
  for (std::size_t i = 1; i < length; ++i)
    code = (code << 6U) | (static_cast<unsigned char>(text[i]) & 0x3FU);
  text.remove_prefix(std::max<std::size_t>(length, 1));
  return code;
}

std::string WithoutBlanks(std::string_view text) {
  std::string result(text);
  result.erase(std::remove(result.begin(), result.end(), ' '), result.end());
  return result;
}

// The characters of a text, one more than a range can have at the most.
Characters CharactersOf(std::string_view text) {
  Characters characters;
  characters.reserve(std::min(text.size(), kLongestRange + 1));
  while (!text.empty() && characters.size() <= kLongestRange)
    characters.push_back(TakeCharacter(text));
  return characters;
}

// ---- the form of a range ----------------------------------------------------------------------------------

enum class RangeForm { none, oneCell, twoCells };

int ClassOf(std::uint32_t code) {
  if (IsLetter(code)) return 1;
  if (IsDigit(code)) return 2;
  return code == ':' ? 3 : 0;
}

// Letters, digits, a colon, letters, digits, or the first two alone; whatever else stands between them is not
// looked at.
RangeForm FormOf(const Characters& characters) {
  int expect = 1;
  bool colonMet = false;
  for (const std::uint32_t code : characters) {
    if (ClassOf(code) != expect) continue;
    if (++expect < 4) continue;
    colonMet = true;
    expect = 1;
  }
  if (expect != 3) return RangeForm::none;
  return colonMet ? RangeForm::twoCells : RangeForm::oneCell;
}

std::size_t LastColon(const Characters& characters) {
  const auto last = std::find(characters.rbegin(), characters.rend(), std::uint32_t{':'});
  return static_cast<std::size_t>(characters.rend() - last) - 1;
}

struct Cell {
  int row = 0;
  int column = 0;
};

// The whole number that the characters from `begin` to `end` are; 0 when they are none.
int RowOf(const Characters& characters, std::size_t begin, std::size_t end) {
  while (begin < end && characters[begin] == '0')
    ++begin;
  if (end > begin + kLongestRow) return 0;
  int row = 0;
  for (std::size_t i = begin; i < end; ++i) {
    if (!IsDigit(characters[i])) return 0;
    row = row * 10 + static_cast<int>(characters[i] - '0');
  }
  return row;
}

int LetterValue(std::uint32_t code) {
  return static_cast<int>(code) - kBeforeLetterA;
}

// The cell that stands from `begin` to `end`, at least one character.
Cell CellOf(const Characters& characters, std::size_t begin, std::size_t end) {
  const int first = LetterValue(characters[begin]);
  if (end - begin > 1 && IsLetter(characters[begin + 1]))
    return {RowOf(characters, begin + 2, end), first * 26 + LetterValue(characters[begin + 1])};
  return {RowOf(characters, begin + 1, end), first};
}

RangeNumbers NumbersOf(const Characters& characters, RangeForm form) {
  const std::size_t end = characters.size();
  const std::size_t colon = form == RangeForm::twoCells ? LastColon(characters) : end;
  const Cell first = CellOf(characters, 0, colon);
  if (form == RangeForm::oneCell) return {first.column, 0, first.row, 0};
  const Cell last = CellOf(characters, colon + 1, end);
  return {first.column, last.column, first.row, last.row};
}

void TellNoRange(std::string_view range, const std::string& kept, const Characters& characters) {
  std::string codes;
  for (const std::uint32_t code : characters)
    codes += std::to_string(code);
  CurrentDialogs().MessageBox(
      "Entry seems not compatible with the req. Excel for the range of cells: "
      "should be like A10:C200. Here  " +
          std::string(range) + " and " + kept + " In asciiW " + codes,
      "Error entry", kBoxStopIcon);
}

void TellOtherForm() {
  CurrentDialogs().MessageBox(
      "High Entry not compatible with the requirements Excel form for the range of cells: should be like "
      "A10:C200 ",
      "Error entry", kBoxStopIcon);
}

// ---- names of cells ---------------------------------------------------------------------------------------

// Adds the character of a code to the text; false when there is none of that code in an 8-bit set.
bool AppendLetter(double code, std::string& text) {
  const double rounded = std::nearbyint(code);
  if (!(rounded >= 1 && rounded <= 255)) return false;
  const auto letter = static_cast<unsigned>(rounded);
  if (letter < 0x80) {
    text += static_cast<char>(letter);
  } else {
    text += static_cast<char>(0xC0U | (letter >> 6U));
    text += static_cast<char>(0x80U | (letter & 0x3FU));
  }
  return true;
}

std::string RowText(double row, std::string_view picture) {
  const bool isWhole = row > 0 && row < 1e9 && row == std::floor(row);
  if (!isWhole) return FormatPicture(row, picture);
  return std::to_string(static_cast<int>(row));
}

void TellError(int number) {
  CurrentDialogs().MessageBox("ERROR n° " + std::to_string(number), "", kBoxInformationIcon);
}

// How many letters, 4 at the most, stand at the head; "[" counts as one.
std::size_t LeadingLetters(std::string_view text) {
  std::size_t count = 0;
  while (count < text.size() && count < 4 && text[count] >= 'A' && text[count] <= '[')
    ++count;
  return count;
}

double ColumnOf(std::string_view letters) {
  if (letters.empty()) return kMissingColumn;
  int column = 0;
  for (const char letter : letters)
    column = column * 26 + (letter - kBeforeLetterA);
  return column;
}

}  // namespace

bool ConvertA1LC(std::string_view range, RangeNumbers& numbers) {
  range = Trim(range);
  if (range.empty()) return false;
  const std::string kept = UpperText(WithoutBlanks(range));
  const Characters characters = CharactersOf(kept);
  if (characters.size() > kLongestRange) return false;

  const RangeForm form = FormOf(characters);
  if (form == RangeForm::none) {
    TellNoRange(range, kept, characters);
    return false;
  }
  numbers = NumbersOf(characters, form);
  const std::string rebuilt = RangeText(numbers);
  if (!rebuilt.empty() && rebuilt != kept) TellOtherForm();
  return true;
}

std::string CellName(double row, double col) {
  if (col > kLastColumn) {
    CurrentDialogs().MessageBox("ERROR: last column shall be less than 255 ie iv",
                                "Retry   or    Voir Tessel", kBoxStopIcon);
  }
  std::string name;
  double last = col;
  if (col > 26) {
    const double hi = std::floor((col - 1) / 26);
    last = col - 26 * hi;
    if (!AppendLetter(kBeforeLetterA + hi, name)) return {};
  }
  if (!AppendLetter(kBeforeLetterA + last, name)) return {};
  return name + RowText(row, "#0");
}

std::string RangeText(const RangeNumbers& numbers) {
  std::string first = CellName(numbers.num1, numbers.Ncol1);
  if (numbers.Ncol2 == 0 || first.empty()) return first;
  const std::string last = CellName(numbers.num2, numbers.Ncol2);
  return last.empty() ? std::string() : first + ":" + last;
}

CellPlace ConvertCellLC(std::string_view text) {
  std::string cell(Trim(UpperText(text)));
  cell.erase(std::remove(cell.begin(), cell.end(), '$'), cell.end());
  if (cell.empty()) return {};
  const std::size_t letters = LeadingLetters(cell);
  if (letters > 3) TellError(kFaultOutOfBounds);
  if (letters > 2) {
    CurrentDialogs().MessageBox("Erreur Adresse, voir Tessel", "", kBoxStopIcon);
    return {};
  }
  CellPlace place;
  place.row = PlainNumber(std::string_view(cell).substr(letters));
  place.col = ColumnOf(std::string_view(cell).substr(0, letters));
  if (place.col > kLastColumn || place.col < 1 || place.row > kLastRow || place.row < 1) {
    CurrentDialogs().MessageBox("Error Address: " + cell + " not allowed, voir Tessel", "", kBoxStopIcon);
  }
  const std::string row = "R" + RowText(place.row, "#");
  place.rc = letters == 0 ? row + "C1:" + row + "C255" : row + "C" + RowText(place.col, "#");
  return place;
}

std::string ShiftCell(std::string_view text, int delta) {
  const CellPlace place = ConvertCellLC(text);
  return CellName(place.row, place.col + delta);
}

void UpdateRange(PlotRange& range, int SpecFound, int baseNum1, int baseNum2, std::string& cellFormula) {
  RangeNumbers& numbers = range.numbers;
  if (SpecFound != 1 || range.text.empty() || numbers.num1 != numbers.num2 || numbers.Ncol1 < 1) return;
  numbers.num2 = numbers.num1 + baseNum2 - baseNum1;
  const std::string text = RangeText(numbers);
  if (text.empty()) return;
  const std::size_t old = cellFormula.find("(" + range.text);
  if (old != std::string::npos) cellFormula.replace(old + 1, range.text.size(), text);
  range.text = text;
}

}  // namespace quorb
