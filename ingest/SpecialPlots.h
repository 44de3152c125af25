#pragma once

namespace quorb {

/// The plot of last resort, when no file gave a row: writes a closed pentagon around the origin into rows 0
/// to 7 of dataXYZT, sets `row` to 9 and `scale` to 1/1000. LastPoint keeps its value.
void BuiltInPlot(int& row, double& scale);

}  // namespace quorb
