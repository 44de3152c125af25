#include "NumberText.h"

#include <algorithm>
#include <cstddef>

#include "TextHelpers.h"

namespace quorb {

std::string DecimalSep;
std::string ThousandSep;
int LocaleRead = 0;

namespace {

RegionalSettings* regionalSettings = nullptr;

// A separator that ShortNumber's fields are made of may occur in one of them.
bool MayOccurInShortNumber(std::string_view separator) {
  return !separator.empty() && separator.find_first_not_of("0123456789.+-eE") == std::string_view::npos;
}

void ReadLocale() {
  DecimalSep = regionalSettings != nullptr ? regionalSettings->DecimalSeparator() : std::string();
  ThousandSep = regionalSettings != nullptr ? regionalSettings->ThousandsSeparator() : std::string();
  LocaleRead = 1;
  shortWayOpen = !MayOccurInShortNumber(ThousandSep);
}

// A no-break space is its UTF-8 sequence, or its Windows-1252 byte where that belongs to no UTF-8 sequence.
bool IsNoBreakSpace(std::string_view character) {
  return character == "\xC2\xA0" || character == "\xA0";
}

bool IsAsciiButBlank(char c) {
  return c != ' ' && static_cast<unsigned char>(c) < 0x80;
}

std::string WithoutBlanks(std::string_view text) {
  if (std::all_of(text.begin(), text.end(), IsAsciiButBlank)) return std::string(text);
  std::string result;
  result.reserve(text.size());
  std::size_t length = 1;
  for (std::size_t i = 0; i < text.size(); i += length) {
    length = std::max<std::size_t>(Utf8SequenceLength(text, i), 1);
    const std::string_view character = text.substr(i, length);
    if (character != " " && !IsNoBreakSpace(character)) result += character;
  }
  return result;
}

void Remove(std::string& text, std::string_view unwanted) {
  std::size_t at = text.find(unwanted);
  if (at == std::string::npos) return;
  std::string result;
  result.reserve(text.size());
  std::size_t from = 0;
  for (; at != std::string::npos; at = text.find(unwanted, from)) {
    result.append(text, from, at - from);
    from = at + unwanted.size();
  }
  text = result.append(text, from);
}

std::string_view WithoutQuotes(std::string_view text) {
  if (text.starts_with('"')) text.remove_prefix(1);
  if (text.ends_with('"')) text.remove_suffix(1);
  return text;
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

std::size_t SkipDigits(std::string_view text, std::size_t from) {
  while (from < text.size() && IsDigit(text[from]))
    ++from;
  return from;
}

bool IsSign(std::string_view text, std::size_t at) {
  return at < text.size() && (text[at] == '+' || text[at] == '-');
}

// Length of the exponent that begins at `from`, letter, sign and digits; 0 when there is none.
std::size_t ExponentLength(std::string_view text, std::size_t from) {
  if (from >= text.size() || std::string_view("eEdD").find(text[from]) == std::string_view::npos) return 0;
  const std::size_t digits = from + 1 + (IsSign(text, from + 1) ? 1 : 0);
  const std::size_t end = SkipDigits(text, digits);
  return end > digits ? end - from : 0;
}

}  // namespace

void SetRegionalSettings(RegionalSettings* settings) {
  regionalSettings = settings;
  LocaleRead = 0;
  shortWayOpen = false;
}

double PlainNumber(std::string_view text) {
  const std::size_t first = IsSign(text, 0) ? 1 : 0;
  const std::size_t point = SkipDigits(text, first);
  const bool hasPoint = point < text.size() && text[point] == '.';
  const std::size_t mantissaEnd = hasPoint ? SkipDigits(text, point + 1) : point;
  if (mantissaEnd - first == (hasPoint ? 1U : 0U)) return 0.0;

  const std::size_t exponent = ExponentLength(text, mantissaEnd);
  const std::size_t begin = text[0] == '+' ? 1 : 0;
  std::string_view number = text.substr(begin, mantissaEnd + exponent - begin);
  std::string respelt;
  if (exponent > 0 && (text[mantissaEnd] == 'd' || text[mantissaEnd] == 'D')) {
    respelt = number;
    respelt[mantissaEnd - begin] = 'e';
    number = respelt;
  }
  double value = 0.0;
  const auto outcome = std::from_chars(number.data(), number.data() + number.size(), value);
  return outcome.ec == std::errc() ? value : 0.0;
}

double TextToDouble(std::string_view text, int& kind) {
  kind = -1;
  text = Trim(text);
  if (text.empty()) return 0.0;
  std::string kept = WithoutBlanks(text);
  if (LocaleRead == 0) ReadLocale();
  if (!ThousandSep.empty() && ThousandSep != ",") Remove(kept, ThousandSep);

  const std::string_view unquoted = WithoutQuotes(kept);
  const std::size_t unquotedComma = unquoted.find(',');
  if (unquotedComma == std::string_view::npos) return PlainNumber(unquoted);

  const bool secondComma = unquoted.find(',', unquotedComma + 1) != std::string_view::npos;
  if (secondComma || unquoted.find('.') != std::string_view::npos) {
    kind = 0;
    Remove(kept, ",");
    return PlainNumber(kept);
  }

  const std::size_t comma = kept.find(',');
  const bool ambiguous = CharacterCount(std::string_view(kept).substr(comma + 1)) == 3;
  if (ambiguous && DecimalSep != ",") {
    kind = 0;
    return PlainNumber(kept.erase(comma, 1));
  }
  kind = 1;
  kept[comma] = '.';
  return PlainNumber(kept);
}

double ValText(std::string_view text) {
  int kind = 0;
  return TextToDouble(text, kind);
}

std::string WithDecimalMark(std::string text) {
  if (LocaleRead == 0) ReadLocale();
  if (DecimalSep == ",") std::replace(text.begin(), text.end(), '.', ',');
  return text;
}

}  // namespace quorb
