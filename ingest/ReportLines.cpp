#include "ReportLines.h"

#include <cstdio>

namespace quorb {

std::string NumberCell(double value) {
  char digits[32];
  const int length = std::snprintf(digits, sizeof digits, "%.17g", value);
  return std::string(digits, static_cast<std::size_t>(length));
}

void ReportLines::Text(std::string_view name, std::string_view value) {
  lines_.append(name).append("\t");
  for (const char c : value)
    lines_ += c == '\t' || c == '\n' || c == '\r' ? ' ' : c;
  lines_ += '\n';
}

void ReportLines::Number(std::string_view name, double value) {
  Text(name, NumberCell(value));
}

void ReportLines::Truth(std::string_view name, bool value) {
  Text(name, value ? "True" : "False");
}

}  // namespace quorb
