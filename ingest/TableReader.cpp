#include "TableReader.h"

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <utility>

#include "StateText.h"

namespace quorb {

namespace {

constexpr char kBlanks = ' ';

/// Where the four columns of a table stand.
struct TableLayout {
  char separator = kBlanks;
  std::size_t column[4] = {};  // time, x, y, z
  std::size_t columns = 0;     // fields of the header line
};

char SeparatorOf(std::string_view header) {
  for (const char separator : {';', ',', '\t'}) {
    if (header.find(separator) != std::string_view::npos) return separator;
  }
  return kBlanks;
}

std::string_view Unquoted(std::string_view field) {
  if (field.size() >= 2 && field.front() == '"' && field.back() == '"')
    field = field.substr(1, field.size() - 2);
  return TrimSpace(field);
}

std::vector<std::string_view> SplitFields(std::string_view line, char separator) {
  if (separator == kBlanks) return SplitWords(line);
  std::vector<std::string_view> fields;
  std::size_t start = 0;
  while (true) {
    const std::size_t end = line.find(separator, start);
    fields.push_back(Unquoted(TrimSpace(line.substr(start, end - start))));
    if (end == std::string_view::npos) return fields;
    start = end + 1;
  }
}

/// The name of a column in lower case, without `unit` behind it in one of its spellings.
std::string PlainName(std::string_view field, const std::string& unit) {
  std::string name(field);
  for (char& c : name) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  for (const std::string& ending : {"_" + unit, "(" + unit + ")", "[" + unit + "]"}) {
    const bool found =
        name.size() > ending.size() && name.compare(name.size() - ending.size(), ending.size(), ending) == 0;
    if (!found) continue;
    name.resize(name.size() - ending.size());
    break;
  }
  return std::string(TrimSpace(name));
}

bool NamesTime(std::string_view field) {
  const std::string name = PlainName(field, "utc");
  const auto names = {"time", "epoch", "t", "date", "datetime", "timestamp", "utc"};
  return std::any_of(names.begin(), names.end(), [&name](const char* known) { return name == known; });
}

bool NamesAxis(std::string_view field, char axis) {
  const std::string name = PlainName(field, "km");
  const std::string letter(1, axis);
  return name == letter || name == "pos_" + letter || name == "position_" + letter ||
         name == letter + "_pos" || name == "r_" + letter || name == "r" + letter;
}

/// The column that `matches`, the first one if several do.
template <typename Match>
std::optional<std::size_t> FindColumn(const std::vector<std::string_view>& names, const Match& matches) {
  const auto found = std::find_if(names.begin(), names.end(), matches);
  if (found == names.end()) return std::nullopt;
  return static_cast<std::size_t>(found - names.begin());
}

/// The names in a header line, without empty ones at its end. Between blanks a unit in brackets is a word of
/// its own and belongs to the name before it.
std::vector<std::string_view> ColumnNames(std::string_view line, char separator) {
  std::vector<std::string_view> names;
  for (const std::string_view field : SplitFields(line, separator)) {
    const bool unit = separator == kBlanks && (field.front() == '(' || field.front() == '[');
    if (!unit || names.empty()) {
      names.push_back(field);
      continue;
    }
    const char* const start = names.back().data();
    names.back() = std::string_view(start, static_cast<std::size_t>(field.data() + field.size() - start));
  }
  while (!names.empty() && names.back().empty())
    names.pop_back();
  return names;
}

/// Reads the header line. The text names the columns that are missing, and is empty when none is.
std::string ReadHeader(std::string_view line, TableLayout& layout) {
  layout.separator = SeparatorOf(line);
  const std::vector<std::string_view> names = ColumnNames(line, layout.separator);
  layout.columns = names.size();
  std::string missing;
  for (std::size_t i = 0; i < 4; ++i) {
    const char axis = " xyz"[i];
    const std::optional<std::size_t> column = FindColumn(
        names, [i, axis](std::string_view name) { return i == 0 ? NamesTime(name) : NamesAxis(name, axis); });
    if (column) layout.column[i] = *column;
    if (!column)
      missing += (missing.empty() ? "" : ", ") + (i == 0 ? std::string("time") : std::string(1, axis));
  }
  return missing;
}

ReadResult ReadRow(std::string_view line, std::size_t number, const TableLayout& layout, StateTable& out) {
  const std::vector<std::string_view> fields = SplitFields(line, layout.separator);
  if (fields.size() < layout.columns) {
    return FaultAtLine(number, std::to_string(fields.size()) + " columns where the header line has " +
                                   std::to_string(layout.columns) + ": fill the line up or take it out");
  }
  const StateFault fault = AppendState({fields[layout.column[0]], fields[layout.column[1]],
                                        fields[layout.column[2]], fields[layout.column[3]]},
                                       EpochForm::epochOrSerialDay, out);
  return fault.what.empty() ? ReadResult{} : FaultAtLine(number, fault.what);
}

bool IsComment(std::string_view line) {
  return TrimSpace(line).substr(0, 1) == "#";
}

std::string_view WithoutCommentMark(std::string_view line) {
  if (!IsComment(line)) return line;
  const std::string_view comment = TrimSpace(line);
  return TrimSpace(comment.substr(std::min(comment.find_first_not_of('#'), comment.size())));
}

}  // namespace

bool TableReader::Recognises(std::string_view head) const {
  return std::none_of(head.begin(), head.end(), [](char c) {
    const auto code = static_cast<unsigned char>(c);
    return code < 32 && c != '\t' && c != '\r' && c != '\n';
  });
}

ReadResult TableReader::Read(std::string_view text, StateTable& out) const {
  StateTable table;
  TableLayout layout;
  bool headerRead = false;
  LineWalk lines(text);
  while (lines.Next()) {
    const std::string_view line = lines.Line();
    if (TrimSpace(line).empty() || (headerRead && IsComment(line))) continue;
    if (headerRead) {
      ReadResult result = ReadRow(line, lines.Number(), layout, table);
      if (!result.Ok()) return result;
      continue;
    }
    const std::string missing = ReadHeader(WithoutCommentMark(line), layout);
    headerRead = missing.empty();
    if (!headerRead && !IsComment(line)) {
      return FaultAtLine(lines.Number(), "the header line " + QuotedForMessage(TrimSpace(line)) +
                                             " names no column for " + missing +
                                             ": name them time, x, y, z (positions in km)");
    }
  }
  if (table.time.empty()) {
    return FaultAtLine(std::max<std::size_t>(lines.Number(), 1),
                       headerRead ? "the file ends behind the header line: add a line a state"
                                  : "the file ends without a header line: name the columns time, x, y, z");
  }
  out = std::move(table);
  return {};
}

}  // namespace quorb
