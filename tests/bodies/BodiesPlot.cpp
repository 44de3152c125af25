#include "BodiesPlot.h"

#include "Box.h"

namespace quorb {

std::vector<std::string> CallsOfBox(double a, double b, double c) {
  ClearCalls();
  monolythe(a, b, c);
  return RecordedCalls();
}

std::vector<std::string> Joined(const std::vector<std::vector<std::string>>& lists) {
  std::vector<std::string> all;
  for (const auto& list : lists)
    all.insert(all.end(), list.begin(), list.end());
  return all;
}

}  // namespace quorb
