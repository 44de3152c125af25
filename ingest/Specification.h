#pragma once

#include <string>
#include <string_view>

namespace quorb {

/// What a specification formula says, for instance
/// "= 0.01 + LEN("Transfer kmday") + MAX(A2:C2000) + MAX(D2:D2000)": the number at its head, the quoted title
/// and up to seven ranges. A range belongs to its meaning by its rank alone; one that is not given is empty.
struct SpecificationText {
  double scale = 1.0;                   ///< The scale factor, never 0.
  std::string title = "QuorbExcelPro";  ///< The title, keywords included.
  std::string rangeXYZ;                 ///< X, Y, Z: 3 columns, or one wider range.
  std::string rangeT;                   ///< Time of the points: 1 column.
  std::string rangeEvents;              ///< Event time, event: 2 columns.
  std::string rangeQuater;              ///< Time, quaternion: 5 columns, or 4 without the time.
  std::string rangeSApY;  ///< Time, angle of the array on plus Y: 2 columns, or the angle alone.
  std::string rangeSAmY;  ///< Time, angle of the array on minus Y: 2 columns, or the angle alone.
  std::string rangeValZ;  ///< Time, colour value: 2 columns, or the value alone.
  bool hasTitle = false;  ///< The formula itself gave the title, be it an empty one.
  bool hasScale = false;  ///< The formula itself gave a scale, that is a number other than 0.
};

/// Reads a specification formula. It searches pieces, case-sensitive, and skips whatever stands between them,
/// so that the formula can stay one that a spreadsheet evaluates.
///
/// Ranges: the text between the first "(" and the first ")" behind each occurrence of `MainKeyword`; the
/// eighth and later occurrences are ignored, and a term whose brackets are missing keeps its rank. When the
/// formula does not hold `MainKeyword`, or when that is empty, `MainKeyword` becomes "MAX". Title: the text
/// between the first pair of double quotes, which may be doubled, and `titleTail` behind it. Scale: the
/// number between the first "=" and the first keyword behind it.
SpecificationText Extraction_info(std::string_view cellFormula, std::string_view titleTail);

}  // namespace quorb
