#include "NumberPicture.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <utility>

namespace quorb {
namespace {

// The decimal digits of a number without its sign: 0.d1d2d3... times 10 to the power `point`. No trailing
// zeros; zero has no digits and point 0.
struct Decimal {
  std::array<char, 24> digits{};
  int count = 0;
  int point = 0;

  // The digit at a place, places of `digits` going on with zeros on both sides.
  char Digit(int place) const {
    return place >= 0 && place < count ? digits[static_cast<std::size_t>(place)] : '0';
  }
};

void DropTrailingZeros(Decimal& number) {
  while (number.count > 0 && number.Digit(number.count - 1) == '0')
    --number.count;
  if (number.count == 0) number.point = 0;
}

// Reads the scientific form that to_chars wrote, "d.ddde+xx".
Decimal FromScientific(const char* begin, const char* end) {
  Decimal number;
  const char* const mark = std::find(begin, end, 'e');
  for (const char* c = begin; c != mark; ++c) {
    if (*c != '.') number.digits[static_cast<std::size_t>(number.count++)] = *c;
  }
  const char* const exponent = mark[1] == '+' ? mark + 2 : mark + 1;
  std::from_chars(exponent, end, number.point);
  ++number.point;
  DropTrailingZeros(number);
  return number;
}

Decimal ShortestDecimal(double magnitude) {
  std::array<char, 40> text{};
  char* const end = text.data() + text.size();
  const auto written = std::to_chars(text.data(), end, magnitude, std::chars_format::scientific);
  return FromScientific(text.data(), written.ptr);
}

Decimal FifteenDigits(double magnitude) {
  std::array<char, 40> text{};
  char* const end = text.data() + text.size();
  const auto written = std::to_chars(text.data(), end, magnitude, std::chars_format::scientific, 14);
  return FromScientific(text.data(), written.ptr);
}

// Keeps the first `kept` digits, half away from zero. A negative `kept` means that the last place shown lies
// above the first digit.
void RoundToDigits(Decimal& number, int kept) {
  if (kept >= number.count) return;
  const bool up = kept >= 0 && number.Digit(kept) >= '5';
  number.count = std::max(kept, 0);
  while (up && number.count > 0 && number.Digit(number.count - 1) == '9')
    --number.count;
  if (up && number.count > 0) {
    ++number.digits[static_cast<std::size_t>(number.count - 1)];
  } else if (up) {
    number.digits[0] = '1';
    number.count = 1;
    ++number.point;
  }
  DropTrailingZeros(number);
}

bool IsPlace(char c) {
  return c == '0' || c == '#';
}

// What a picture asks for, counted before anything is written.
struct Layout {
  int places = 0;           // in front of the point
  int shownPlaces = 0;      // of these, from the first 0 on: never blank
  int decimals = 0;         // behind the point
  int shownDecimals = 0;    // of these, up to the last 0
  int exponentDigits = -1;  // of E+00; -1 without one
  bool grouped = false;
};

// Length of "E+00" with any number of zeros at the head of `text`, 0 if there is none.
std::size_t ExponentMarkLength(std::string_view text) {
  if (!text.starts_with("E+")) return 0;
  return std::min(text.find_first_not_of('0', 2), text.size());
}

Layout ReadLayout(std::string_view picture) {
  Layout layout;
  bool behindPoint = false;
  for (std::size_t i = 0; i < picture.size(); ++i) {
    const char c = picture[i];
    if (c == '\\') {
      ++i;
    } else if (const std::size_t mark = ExponentMarkLength(picture.substr(i)); mark > 0) {
      layout.exponentDigits = static_cast<int>(mark) - 2;
      i += mark - 1;
    } else if (c == '.') {
      behindPoint = true;
    } else if (c == ',') {
      layout.grouped = layout.places > 0 && !behindPoint;
    } else if (IsPlace(c) && behindPoint) {
      ++layout.decimals;
      if (c == '0') layout.shownDecimals = layout.decimals;
    } else if (IsPlace(c)) {
      ++layout.places;
      if (c == '0' || layout.shownPlaces > 0) ++layout.shownPlaces;
    }
  }
  return layout;
}

// Writes one number into one picture, place by place.
class PictureWriter {
 public:
  PictureWriter(Decimal number, const Layout& layout) : number_(number), layout_(layout) {
    if (layout.exponentDigits >= 0) {
      RoundToDigits(number_, layout.places + layout.decimals);
      if (number_.count > 0) {
        exponent_ = number_.point - layout.places;
        number_.point = layout.places;
      }
    } else {
      RoundToDigits(number_, number_.point + layout.decimals);
    }
    wholeDigits_ = std::max(number_.point, layout.shownPlaces);
  }

  bool ShowsZero() const { return number_.count == 0; }

  std::string Write(std::string_view picture) {
    text_.reserve(picture.size() + static_cast<std::size_t>(wholeDigits_));
    for (std::size_t i = 0; i < picture.size(); ++i) {
      const char c = picture[i];
      if (c == '\\') {
        if (++i < picture.size()) text_ += picture[i];
      } else if (const std::size_t mark = ExponentMarkLength(picture.substr(i)); mark > 0) {
        WriteExponent();
        i += mark - 1;
      } else if (c == '.') {
        behindPoint_ = true;
        text_ += c;
      } else if (IsPlace(c)) {
        WritePlace();
      } else if (c != ',' || !layout_.grouped) {
        text_ += c;
      }
    }
    return std::move(text_);
  }

 private:
  void WritePlace() {
    if (behindPoint_) {
      const int place = number_.point + decimal_;
      if (decimal_ < layout_.shownDecimals || place < number_.count) text_ += number_.Digit(place);
      ++decimal_;
      return;
    }
    // The digits that the places behind this one do not need come out here.
    const int following = layout_.places - place_ - 1;
    for (; nextWhole_ < wholeDigits_ - following; ++nextWhole_) {
      text_ += number_.Digit(number_.point - wholeDigits_ + nextWhole_);
      const int rest = wholeDigits_ - nextWhole_ - 1;
      if (layout_.grouped && rest > 0 && rest % 3 == 0) text_ += ',';
    }
    ++place_;
  }

  void WriteExponent() {
    text_ += exponent_ < 0 ? "E-" : "E+";
    const std::string digits = std::to_string(std::abs(exponent_));
    const auto wanted = static_cast<std::size_t>(layout_.exponentDigits);
    if (digits.size() < wanted) text_.append(wanted - digits.size(), '0');
    text_ += digits;
  }

  Decimal number_;
  Layout layout_;
  int exponent_ = 0;
  int wholeDigits_ = 0;
  int nextWhole_ = 0;
  int place_ = 0;
  int decimal_ = 0;
  bool behindPoint_ = false;
  std::string text_;
};

// Place of the ';' between the two pictures, npos without one.
std::size_t SectionEnd(std::string_view picture) {
  for (std::size_t i = 0; i < picture.size(); ++i) {
    if (picture[i] == ';') return i;
    if (picture[i] == '\\') ++i;
  }
  return std::string_view::npos;
}

std::string WithExponent(const Decimal& number) {
  std::string text(1, number.Digit(0));
  if (number.count > 1)
    text.append(1, '.').append(number.digits.data() + 1, static_cast<std::size_t>(number.count - 1));
  const int exponent = number.point - 1;
  const std::string digits = std::to_string(std::abs(exponent));
  return text + (exponent < 0 ? "E-" : "E+") + (digits.size() < 2 ? "0" : "") + digits;
}

std::string WithoutExponent(const Decimal& number) {
  std::string text;
  for (int place = std::min(number.point - 1, 0); place < std::max(number.count, number.point); ++place) {
    if (place == number.point) text += '.';
    text += number.Digit(place);
  }
  return text;
}

}  // namespace

std::string FormatPicture(double value, std::string_view picture) {
  if (!std::isfinite(value)) return GeneralNumber(value);
  const std::size_t end = SectionEnd(picture);
  const bool ownMinus = value < 0.0 && end != std::string_view::npos;
  const std::string_view section = ownMinus ? picture.substr(end + 1) : picture.substr(0, end);

  PictureWriter writer(ShortestDecimal(std::fabs(value)), ReadLayout(section));
  const bool minus = value < 0.0 && !ownMinus && !writer.ShowsZero();
  std::string text = writer.Write(section);
  if (minus) text.insert(0, 1, '-');
  return text;
}

std::string GeneralNumber(double value) {
  if (std::isnan(value)) return "NaN";
  if (std::isinf(value)) return value < 0.0 ? "-Inf" : "Inf";
  if (value == 0.0) return "0";
  const Decimal number = FifteenDigits(std::fabs(value));
  const int exponent = number.point - 1;
  const bool plain = exponent >= -4 && exponent < 15;
  return (value < 0.0 ? "-" : "") + (plain ? WithoutExponent(number) : WithExponent(number));
}

}  // namespace quorb
