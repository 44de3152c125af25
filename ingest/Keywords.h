#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorb {

/// What the keywords of a title say to the load that reads it. What they say to the scene goes into the
/// process-wide flags of RunState.h and into USERFLAG.
struct TitleKeywords {
  bool TimeInSeconds = true;          ///< The sheet's times are seconds; days otherwise.
  bool LengthInMetres = true;         ///< The sheet's lengths are metres; kilometres otherwise.
  int circularShift = 0;              ///< Places that the axes move up, 0 to 2: 1 is "yzx", 2 is "zxy".
  int exchange = 0;                   ///< Exchange of axes: 0 none, 1 "yxz", 2 "xzy", 3 "zyx".
  double latitude = 0;                ///< Origin of North-East-Down data, degrees.
  double longitude = 0;               ///< Origin of North-East-Down data, degrees.
  double distance = 0;                ///< The third number behind " ned".
  std::optional<double> forcedScale;  ///< The scale by which the rows are read instead of the given one.
  bool clearCheck9 = false;           ///< The cubic view check box is to be cleared.
  bool showCheck5 = false;            ///< The check box of the coloured trajectory is to be shown.
  bool showCheck11 = false;           ///< The check box of the whole orbit is to be shown.
};

/// The pieces of the keyword pass, in the order in which a load runs them.
enum class KeywordStage {
  beforeRows,       ///< Pen, column, axes, units, frames: before the rows are read.
  colourValues,     ///< "valz" to "lamdor": the first piece after the rows.
  quaternionOrder,  ///< "ESA" and "xyzw".
  centralBody,      ///< "moon" to "jupiter".
};

/// Puts every flag that a keyword sets to its default, so that nothing of an earlier plot's title lasts, and
/// gives the record of a title without keywords. To be called once in each load, before the first stage.
TitleKeywords StartKeywordPass();

/// Runs one stage of the keyword pass over `MessageUserToPlot`: sets the flags, completes `found` and takes
/// the words that it recognises out of the title. The words are looked for one after the other, each in what
/// the words before it left, also inside other words; a later one overrules an earlier one.
void Extraction_information_mots_clef(KeywordStage stage, TitleKeywords& found);

/// The words that the pass looks for, in the order in which it does.
std::vector<std::string_view> SearchedKeywords();

/// Takes the blanks away that the removed words left at the end of `MessageUserToPlot`. To be called once, at
/// the end of a load.
void EndKeywordPass();

/// Removes the first occurrence of `word`, case-sensitive, from `title`. One blank takes its place, unless at
/// most one character stands behind it: then the title is cut where the word began, and that character goes
/// too.
void RemoveWord(std::string_view word, std::string& title);

}  // namespace quorb
