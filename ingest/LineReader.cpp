#include "LineReader.h"

#include <algorithm>

namespace quorb {

// A mark found once stays found until the position passes it: a text with one kind of line end only is not
// searched to its end again and again for the other.
std::size_t LineReader::NextOf(char mark, std::size_t& found) {
  if (!searched_ || found < position_) {
    const std::size_t at = text_.find(mark, position_);
    found = at == std::string_view::npos ? text_.size() : at;
  }
  return found;
}

bool LineReader::Next(std::string_view& line) {
  if (AtEnd()) return false;
  const std::size_t lineFeed = NextOf('\n', nextLineFeed_);
  const std::size_t carriageReturn = NextOf('\r', nextReturn_);
  searched_ = true;
  const std::size_t end = std::min(lineFeed, carriageReturn);
  line = text_.substr(position_, end - position_);
  const bool isPair = carriageReturn < text_.size() && lineFeed == carriageReturn + 1;
  position_ = end + (isPair ? 2 : 1);
  return true;
}

}  // namespace quorb
