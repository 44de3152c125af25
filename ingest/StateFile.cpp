#include "StateFile.h"

#include <charconv>

#include "HeaderLine.h"
#include "NumberText.h"
#include "StateText.h"
#include "TitleWords.h"

namespace quorb {

namespace {

constexpr std::string_view kUnits = "kmday";
constexpr std::string_view kPlainTitle = "Trajectory";
constexpr std::size_t kLongestNumber = 400;  // the smallest double has 324 digits behind the point
constexpr std::size_t kBytesPerRow = 80;

struct CentralBody {
  std::string_view name;
  std::string_view keyword;
};

constexpr CentralBody kBodies[] = {
    {"EARTH", ""},
    {"MOON", "moon"},
    {"SUN", "sun"},
    {"MERCURY", "mercury"},
    {"MERCURY BARYCENTER", "mercury"},
    {"VENUS", "venus"},
    {"VENUS BARYCENTER", "venus"},
    {"MARS", "mars"},
    {"MARS BARYCENTER", "mars"},
    {"JUPITER", "jupiter"},
    {"JUPITER BARYCENTER", "jupiter"},
};

const CentralBody* FindBody(std::string_view centreName) {
  std::string name(centreName);
  for (char& c : name) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    if (c == '_') c = ' ';
  }
  for (const CentralBody& body : kBodies) {
    if (body.name == name) return &body;
  }
  return nullptr;
}

std::string ScaleText(double scale) {
  char digits[kLongestNumber];
  const auto end = std::to_chars(digits, digits + kLongestNumber, scale, std::chars_format::fixed);
  return std::string(digits, end.ptr);
}

void AppendWord(std::string& title, std::string_view word) {
  if (word.empty()) return;
  if (!title.empty()) title += ' ';
  title += word;
}

std::string FormulaTitle(const StateTable& table, const std::string& title) {
  std::string words = title;
  AppendWord(words, kUnits);
  AppendWord(words, BodyKeyword(table.centreName));
  return words;
}

std::string Formula(const std::string& title, double scale, std::size_t states) {
  const std::string lastRow = std::to_string(states + 1);
  return "= " + WithDecimalMark(ScaleText(scale)) + " + LEN(\"" + title + "\") + MAX(A2:C" + lastRow +
         ") + MAX(D2:D" + lastRow + ")";
}

}  // namespace

std::string StateFileText(const StateTable& table, const StateFileOptions& options) {
  HeaderLineFields header;
  header.sourceName = options.sourceName;
  header.sheetName = table.objectName.empty() ? table.frame : table.objectName;
  header.title = FormulaTitle(table, options.title);
  header.formula = Formula(header.title, options.scale, table.time.size());
  header.scale = options.scale;
  header.written = options.written;
  std::string text = DataFileHeaderLine(header);
  text.reserve(text.size() + table.time.size() * kBytesPerRow);
  for (std::size_t row = 0; row < table.time.size(); ++row) {
    AppendCellNumber(text, table.x[row]);
    text += '\t';
    AppendCellNumber(text, table.y[row]);
    text += '\t';
    AppendCellNumber(text, table.z[row]);
    text += '\t';
    AppendCellNumber(text, table.time[row]);
    text += "\r\n";
  }
  return text;
}

std::string_view BodyKeyword(std::string_view centreName) {
  const CentralBody* const body = FindBody(centreName);
  return body == nullptr ? std::string_view() : body->keyword;
}

bool IsKnownCentre(std::string_view centreName) {
  return centreName.empty() || FindBody(centreName) != nullptr;
}

std::string DerivedTitle(const StateTable& table, std::string_view fileStem,
                         std::vector<std::string>& warnings) {
  std::string title = table.objectName.empty() ? std::string(fileStem) : table.objectName;
  const std::string fault = TitleFault(title);
  if (fault.empty()) return title;
  warnings.push_back("the name " + QuotedForMessage(title) + " gives no title, so it is \"" +
                     std::string(kPlainTitle) + "\": " + fault);
  return std::string(kPlainTitle);
}

void WarnOfTitleWords(std::string_view title, std::vector<std::string>& warnings) {
  for (const TitleWord& found : TitleWordsIn(title)) {
    warnings.push_back("the title holds the keyword \"" + std::string(found.word) + "\": the viewer " +
                       std::string(found.effect));
  }
}

}  // namespace quorb
