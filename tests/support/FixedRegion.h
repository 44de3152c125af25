#pragma once

#include <string>
#include <utility>

#include "NumberText.h"

namespace quorb {

/// A machine with these separators, for as long as it lives.
class FixedRegion : public RegionalSettings {
 public:
  FixedRegion(std::string decimal, std::string thousands)
      : decimal_(std::move(decimal)), thousands_(std::move(thousands)) {
    SetRegionalSettings(this);
  }
  ~FixedRegion() override { SetRegionalSettings(nullptr); }
  FixedRegion(const FixedRegion&) = delete;
  FixedRegion& operator=(const FixedRegion&) = delete;
  std::string DecimalSeparator() override { return decimal_; }
  std::string ThousandsSeparator() override { return thousands_; }

 private:
  std::string decimal_, thousands_;
};

}  // namespace quorb
