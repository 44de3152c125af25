#pragma once

#include <string>

#include "NumberText.h"

namespace quorb {

/// Regional settings of a fuzz target: one of the pairs of separators that are in use, chosen by a number.
class Separators : public RegionalSettings {
 public:
  explicit Separators(unsigned choice) : choice_(choice % 6) { SetRegionalSettings(this); }
  ~Separators() override { SetRegionalSettings(nullptr); }
  Separators(const Separators&) = delete;
  Separators& operator=(const Separators&) = delete;

  std::string DecimalSeparator() override { return kPairs[choice_][0]; }
  std::string ThousandsSeparator() override { return kPairs[choice_][1]; }

 private:
  static constexpr const char* kPairs[6][2] = {{"", ""},          {".", ","}, {",", "."},
                                               {",", "\xC2\xA0"}, {".", "'"}, {",", " "}};
  unsigned choice_;
};

}  // namespace quorb
