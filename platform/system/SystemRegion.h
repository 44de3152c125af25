#pragma once

#include "NumberText.h"

namespace quorb {

/// The separators of numbers in the user's regional settings.
class SystemRegion : public RegionalSettings {
 public:
  std::string DecimalSeparator() override;
  std::string ThousandsSeparator() override;
};

}  // namespace quorb
