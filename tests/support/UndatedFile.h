#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace quorb {

/// A data file's text, with the date and time of its header, "Date 2024/02/29 12:30:05", as "Date D".
inline std::string UndatedFile(std::string text) {
  constexpr std::string_view shape = "Date ####/##/## ##:##:##";
  const auto fits = [](char found, char wanted) {
    return wanted == '#' ? found >= '0' && found <= '9' : found == wanted;
  };
  const auto date = std::search(text.begin(), text.end(), shape.begin(), shape.end(), fits);
  if (date != text.end()) text.replace(date, date + std::ssize(shape), "Date D");
  return text;
}

}  // namespace quorb
