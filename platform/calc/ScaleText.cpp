#include "ScaleText.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>

#include "NumberText.h"

namespace quorb {

namespace {

// Far beyond what a number can hold either way.
constexpr long kMostExponent = 9999;

std::size_t BehindDigits(const std::string& text, std::size_t at) {
  while (at < text.size() && std::isdigit(static_cast<unsigned char>(text[at])) != 0)
    ++at;
  return at;
}

// The place behind an exponent that begins there, or that place itself.
std::size_t BehindExponent(const std::string& text, std::size_t at) {
  if (at >= text.size() || (text[at] != 'E' && text[at] != 'e')) return at;
  std::size_t digits = at + 1;
  if (digits < text.size() && (text[digits] == '+' || text[digits] == '-')) ++digits;
  const std::size_t end = BehindDigits(text, digits);
  return end == digits ? at : end;
}

}  // namespace

std::string WithReadableScale(std::string formula) {
  if (ValText("1.5") == 1.5) return formula;
  const std::size_t head = formula.find_first_not_of("= -");
  if (head == std::string::npos || formula.front() != '=') return formula;
  const std::size_t point = BehindDigits(formula, head);
  if (point >= formula.size() || formula[point] != '.') return formula;
  const std::size_t digitsEnd = BehindDigits(formula, point + 1);
  const std::size_t decimals = digitsEnd - point - 1;
  if (decimals == 0) return formula;
  const std::size_t end = BehindExponent(formula, digitsEnd);
  const long exponent = end == digitsEnd ? 0 : std::strtol(formula.c_str() + digitsEnd + 1, nullptr, 10);
  const long given = std::clamp(exponent, -kMostExponent, kMostExponent);
  std::string digits = formula.substr(head, point - head) + formula.substr(point + 1, decimals);
  digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size() - 1));
  digits += "E" + std::to_string(given - static_cast<long>(decimals));
  return formula.replace(head, end - head, digits);
}

}  // namespace quorb
