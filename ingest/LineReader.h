#pragma once

#include <cstddef>
#include <string_view>

namespace quorb {

/// Walks the lines of a text in memory. A line ends at CR LF, LF or a lone CR.
class LineReader {
 public:
  LineReader() = default;
  explicit LineReader(std::string_view text) : text_(text) {}

  /// Gives the next line without its end, as a view of the text; false at the end of the text.
  bool Next(std::string_view& line);

  bool AtEnd() const { return position_ >= text_.size(); }

 private:
  std::size_t NextOf(char mark, std::size_t& found);

  std::string_view text_;
  std::size_t position_ = 0;
  std::size_t nextLineFeed_ = 0;  // the first of each at or behind position_, once position_ has passed it
  std::size_t nextReturn_ = 0;
  bool searched_ = false;
};

}  // namespace quorb
