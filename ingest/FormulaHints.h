#pragma once

#include <string>
#include <vector>

#include "Specification.h"

namespace quorb {

/// What is likely wrong with a formula, each as a sentence that says what, where and what to write instead:
/// no "=" at its head, no main keyword, brackets or quotes without a partner, the keyword inside the title,
/// "$" in a range, a range that is not read as one or ends above its start, more terms than there are
/// meanings. Empty for a formula that reads well.
std::vector<std::string> FormulaHints(const std::string& formula, const SpecificationText& specification);

}  // namespace quorb
