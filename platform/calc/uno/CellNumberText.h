#pragma once

#include <string>

namespace quorb {

/// A number as text in its general form: up to 15 significant digits, a point, no zeros at the end.
std::string CellNumberText(double number);

}  // namespace quorb
