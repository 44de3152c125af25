#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace quorb {

/// A number with 17 significant digits: it reads back as the same number.
std::string NumberCell(double value);

/// Collects a report, one `name<TAB>value` a line.
class ReportLines {
 public:
  void Text(std::string_view name, std::string_view value);
  void Number(std::string_view name, double value);
  /// True or False.
  void Truth(std::string_view name, bool value);

  /// The lines so far; they are gone from here then.
  std::string Take() { return std::exchange(lines_, {}); }

 private:
  std::string lines_;
};

}  // namespace quorb
