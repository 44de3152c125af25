#include "TitleWords.h"

#include <algorithm>

namespace quorb {

namespace {

/// How a word is searched: in the lower case of the title, in its upper case, or as it stands.
enum class Match { lower, upper, exact };

struct Keyword {
  std::string_view word;
  std::string_view effect;
  Match match;
  bool changesNumbers;
};

constexpr Keyword kKeywords[] = {
    {"penuplabel", "breaks the line at every point and wants labels", Match::lower, true},
    {"penup", "breaks the line at every point", Match::lower, true},
    {"column", "takes three rows for a point", Match::lower, true},
    {"xyz", "sets the order of the axes", Match::lower, true},
    {"yzx", "shifts the axes", Match::lower, true},
    {"zxy", "shifts the axes", Match::lower, true},
    {"yxz", "exchanges axes", Match::lower, true},
    {"xzy", "exchanges axes", Match::lower, true},
    {"zyx", "exchanges axes", Match::lower, true},
    {"seconds", "takes the time in seconds", Match::lower, true},
    {" s ", "takes the time in seconds", Match::lower, true},
    {"metres", "takes the lengths in metres", Match::lower, true},
    {" m ", "takes the lengths in metres", Match::lower, true},
    {" ms ", "takes metres and seconds", Match::lower, true},
    {" sm ", "takes metres and seconds", Match::lower, true},
    {"kmdays", "takes kilometres and days, and the converter adds its own such word", Match::lower, true},
    {"kmday", "takes kilometres and days, and the converter adds its own such word", Match::lower, true},
    {"km", "takes kilometres and seconds", Match::lower, true},
    {"days", "takes the time in days", Match::lower, true},
    {"day", "takes the time in days", Match::lower, true},
    {"esa", "takes kilometres and days", Match::lower, true},
    {"em_system", "turns the plot into the Earth-Moon system", Match::lower, true},
    {" ned", "takes the rows as North-East-Down offsets", Match::lower, true},
    {"MAX", "marks a range of cells", Match::exact, true},
    {"valz", "colours the line by values", Match::lower, false},
    {"valy", "colours the line by values", Match::lower, false},
    {"valx", "colours the line by values", Match::lower, false},
    {"lamdor", "changes the label at the origin", Match::lower, false},
    {"ESA", "takes quaternions with the scalar last", Match::upper, false},
    {"xyzw", "takes quaternions with the scalar last", Match::lower, false},
    {"moon", "shows the Moon at the centre", Match::exact, false},
    {"lune", "shows the Moon at the centre", Match::exact, false},
    {"Focus ", "takes the word out of the title", Match::exact, false},
    {"earth", "takes the word out of the title", Match::exact, false},
    {"terre", "takes the word out of the title", Match::exact, false},
    {"sun", "shows the Sun at the centre", Match::exact, false},
    {"soleil", "shows the Sun at the centre", Match::exact, false},
    {"mercury", "shows Mercury at the centre", Match::exact, false},
    {"venus", "shows Venus at the centre", Match::exact, false},
    {"mars", "shows Mars at the centre", Match::exact, false},
    {"jupiter", "shows Jupiter at the centre", Match::exact, false},
};

std::string Lower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

std::string Upper(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return upper;
}

bool IsRefused(char c) {
  return c == '"' || static_cast<unsigned char>(c) < 32 || c == 127;
}

}  // namespace

std::vector<TitleWord> TitleWordsIn(std::string_view title) {
  const std::string exact = std::string(title) + " ";
  const std::string lower = Lower(exact);
  const std::string upper = Upper(exact);
  std::vector<TitleWord> found;
  for (const Keyword& keyword : kKeywords) {
    const std::string& searched = keyword.match == Match::lower   ? lower
                                  : keyword.match == Match::upper ? upper
                                                                  : exact;
    if (searched.find(keyword.word) == std::string::npos) continue;
    found.push_back({keyword.word, keyword.effect, keyword.changesNumbers});
  }
  return found;
}

std::string TitleFault(std::string_view title) {
  if (std::any_of(title.begin(), title.end(), IsRefused)) {
    return "a title holds no double quote, TAB, line end or other control character";
  }
  for (const TitleWord& found : TitleWordsIn(title)) {
    if (!found.changesNumbers) continue;
    return "the title holds the keyword \"" + std::string(found.word) + "\", which " +
           std::string(found.effect) + " and would spoil the file";
  }
  return {};
}

}  // namespace quorb
