#pragma once

#include <charconv>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace quorb {

/// What the platform tells of the user's regional settings. Texts in UTF-8; both may be empty.
class RegionalSettings {
 public:
  virtual ~RegionalSettings() = default;
  virtual std::string DecimalSeparator() = 0;
  virtual std::string ThousandsSeparator() = 0;
};

/// Sets where the separators come from; with a null pointer, as at the start, both are empty. They are read
/// anew at the next conversion. The caller keeps the ownership.
void SetRegionalSettings(RegionalSettings* settings);

/// The separators of the user's regional settings, read once, at the first conversion of a text that is not
/// blank. `LocaleRead` is 0 until then and 1 afterwards.
extern std::string DecimalSep;
extern std::string ThousandSep;
extern int LocaleRead;

/// Reads a number written by hand or by a spreadsheet under any regional setting (1 234,5 or 1,234.5 or 1.5).
/// Blanks, no-break spaces and `ThousandSep` are dropped, and the commas are judged by the form of the text:
/// several commas, or a comma beside a point, are thousands marks; one comma with three characters behind it
/// is the decimal mark where `DecimalSep` is a comma and a thousands mark elsewhere; any other lone comma is
/// the decimal mark. So the comma itself is never dropped as a `ThousandSep`. Where `ThousandSep` is a
/// point, 1.5 reads as 15.
///
/// @param text UTF-8 or Windows-1252.
/// @param kind out: -1 no comma was met, 0 the comma was a thousands mark, 1 the comma was the decimal mark.
/// @return the number; 0 for a text that begins with none, or one beyond the range of a double.
double TextToDouble(std::string_view text, int& kind);

/// `TextToDouble` with the kind ignored.
double ValText(std::string_view text);

/// The plain conversion: a sign, digits with at most one point, and an exponent behind E or D in either case.
/// It stops at the first character that it can't use; an exponent without digits is not one ("1e" is 1).
/// Exactly rounded; 0 where there is no number or one beyond the range of a double.
double PlainNumber(std::string_view text);

/// True once the separators are known and none of them can occur in a plain decimal field. Kept by the
/// module; only `ShortNumber` looks at it.
inline bool shortWayOpen = false;

/// Reads the plain decimal number ("-12.5e3") that stands at the head of `text` into `value`.
/// @return its length in bytes; 0 and `value` untouched when there is none or when it has to go through
/// `TextToDouble`.
inline std::size_t ShortNumberLength(std::string_view text, double& value) {
  const auto digitOrPoint = [](char c) { return (c >= '0' && c <= '9') || c == '.'; };
  if (!shortWayOpen || text.empty()) return 0;
  const bool negative = text[0] == '-' && text.size() > 1;
  if (!digitOrPoint(text[negative ? 1 : 0])) return 0;

  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error == std::errc() ? static_cast<std::size_t>(stop - text.data()) : 0;
}

/// The quick way for a field that is plain decimal text from end to end: the same bits as `TextToDouble`
/// gives, or nothing when the field has to go through `TextToDouble`.
inline std::optional<double> ShortNumber(std::string_view field) {
  double value = 0.0;
  const std::size_t length = ShortNumberLength(field, value);
  if (length == 0 || length != field.size()) return std::nullopt;
  return value;
}

/// The text of a number as this machine writes it: the point becomes `DecimalSep` where that is a comma.
std::string WithDecimalMark(std::string text);

}  // namespace quorb
