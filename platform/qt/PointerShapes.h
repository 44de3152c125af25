#pragma once

#include <QCursor>
#include <string>

namespace quorb {

/// The mouse pointer of a number that the scene gives: 0 to 15 the desktop's own, 200 to 207 and 210 to 212
/// those of the mouse modes, 99 the picture file `icon`. An arrow for any other, and when the picture cannot
/// be read.
QCursor PointerShape(int id, const std::string& icon);

}  // namespace quorb
