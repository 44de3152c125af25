#pragma once

#include <string>

namespace quorb {

/// A formula as the office tells it, with a decimal number at its head ("=0.5+...") that reads the same under
/// any regional setting: where the point is a thousands mark it becomes a whole number with an exponent
/// ("=5E-1+..."), since 0.5 would be read as 05 there. Elsewhere, and without such a number, as it stood.
std::string WithReadableScale(std::string formula);

}  // namespace quorb
