#include "Keywords.h"

#include <algorithm>

#include "NumberText.h"
#include "PlotData.h"
#include "RunState.h"
#include "TextHelpers.h"
#include "UserFlag.h"

namespace quorb {
namespace {

constexpr std::size_t kAbsent = std::string_view::npos;

// ---- what the keywords do ---------------------------------------------------------------------------------

void NoEffect(TitleKeywords&) {}

void SeparateObjects(TitleKeywords&) {
  PenUpMode = 1;
}

void LabelledObjects(TitleKeywords& found) {
  PenUpLabelMode = 1;
  PenUpMode = 1;
  found.clearCheck9 = true;
}

void SingleColumn(TitleKeywords&) {
  ColumnMode = 1;
}

template <int Places>
void ShiftAxes(TitleKeywords& found) {
  found.circularShift = Places;
}

template <int Code>
void ExchangeAxes(TitleKeywords& found) {
  found.exchange = Code;
  found.circularShift = 0;
}

void Seconds(TitleKeywords& found) {
  found.TimeInSeconds = true;
}

void Days(TitleKeywords& found) {
  found.TimeInSeconds = false;
}

void Metres(TitleKeywords& found) {
  found.LengthInMetres = true;
}

void MetresSeconds(TitleKeywords& found) {
  found.LengthInMetres = true;
  found.TimeInSeconds = true;
}

void KilometresSeconds(TitleKeywords& found) {
  found.LengthInMetres = false;
  found.TimeInSeconds = true;
}

void KilometresDays(TitleKeywords& found) {
  found.LengthInMetres = false;
  found.TimeInSeconds = false;
}

void EarthMoonSystem(TitleKeywords&) {
  EMSystem = 1;
}

void NorthEastDown(TitleKeywords& found);

void ColourValues(TitleKeywords& found) {
  ValColour = 1;
  found.showCheck5 = true;
  found.showCheck11 = true;
}

void HalfLogo(TitleKeywords&) {
  USERFLAG.LogoScale = 0.5;
}

void ScalarLast(TitleKeywords&) {
  QuaterScalarLast = 1;
}

void AroundMoon(TitleKeywords&) {
  MoonFocus = 1;
}

template <int Body>
void FocusOn(TitleKeywords&) {
  FocusBody = Body;
}

// ---- the table --------------------------------------------------------------------------------------------

/// How a word is looked for: in the lower-case title, in the title as it stands, in the upper-case title.
enum class Match { lower, exact, upper };

/// When a row is tried: always, or only when none of the rows right above it, up to the last one that is
/// always tried, has matched.
enum class Tried { always, ifNoneAbove };

struct KeywordRow {
  KeywordStage stage;
  Match match;
  std::string_view word;
  std::string_view removed;  // leaves the title, in this spelling only; empty when nothing does
  void (*effect)(TitleKeywords& found);
  Tried tried = Tried::always;
};

using enum KeywordStage;
using enum Match;
using enum Tried;

constexpr std::string_view kNedWord = " ned";

// clang-format off
constexpr KeywordRow kKeywordRows[] = {
    // stage          match  word          removed       effect
    {beforeRows,      lower,  "penuplabel", "penuplabel", LabelledObjects},
    {beforeRows,      lower,  "penup",      "penup",      SeparateObjects},
    {beforeRows,      lower,  "column",     "column",     SingleColumn},
    {beforeRows,      lower,  "xyz",        "xyz",        NoEffect},
    {beforeRows,      lower,  "yzx",        "yzx",        ShiftAxes<1>},
    {beforeRows,      lower,  "zxy",        "zxy",        ShiftAxes<2>},
    {beforeRows,      lower,  "yxz",        "yxz",        ExchangeAxes<1>},
    {beforeRows,      lower,  "xzy",        "xzy",        ExchangeAxes<2>},
    {beforeRows,      lower,  "zyx",        "zyx",        ExchangeAxes<3>},
    {beforeRows,      lower,  "seconds",    "seconds",    Seconds},
    {beforeRows,      lower,  " s ",        " s",         Seconds},
    {beforeRows,      lower,  "metres",     "metres",     Metres},
    {beforeRows,      lower,  " m ",        " m",         Metres},
    {beforeRows,      lower,  " ms ",       " ms",        MetresSeconds},
    {beforeRows,      lower,  " sm ",       " sm",        MetresSeconds},
    {beforeRows,      lower,  "kmdays",     "kmdays",     KilometresDays},
    {beforeRows,      lower,  "kmday",      "kmday",      KilometresDays},
    {beforeRows,      lower,  "km",         "km",         KilometresSeconds},
    {beforeRows,      lower,  "days",       "days",       Days},
    {beforeRows,      lower,  "day",        "day",        Days},
    {beforeRows,      lower,  "esa",        "",           KilometresDays},
    {beforeRows,      lower,  "em_system",  "em_system",  EarthMoonSystem},
    {beforeRows,      lower,  kNedWord,     kNedWord,     NorthEastDown},

    {colourValues,    lower,  "valz",       "valz",       ColourValues},
    {colourValues,    lower,  "valy",       "valy",       ColourValues, ifNoneAbove},
    {colourValues,    lower,  "valx",       "valx",       ColourValues, ifNoneAbove},
    {colourValues,    lower,  "lamdor",     "lamdor",     HalfLogo},

    {quaternionOrder, upper,  "ESA",        "",           ScalarLast},
    {quaternionOrder, lower,  "xyzw",       "xyzw",       ScalarLast, ifNoneAbove},

    {centralBody,     exact,  "moon",       "moon",       AroundMoon},
    {centralBody,     exact,  "lune",       "lune",       AroundMoon, ifNoneAbove},
    {centralBody,     exact,  "Focus ",     "Focus ",     NoEffect},
    {centralBody,     exact,  "earth",      "earth",      NoEffect},
    {centralBody,     exact,  "terre",      "terre",      NoEffect},
    {centralBody,     exact,  "sun",        "sun",        FocusOn<1>},
    {centralBody,     exact,  "soleil",     "soleil",     FocusOn<1>},
    {centralBody,     exact,  "mercury",    "mercury",    FocusOn<2>},
    {centralBody,     exact,  "venus",      "venus",      FocusOn<3>},
    {centralBody,     exact,  "mars",       "mars",       FocusOn<5>},
    {centralBody,     exact,  "jupiter",    "jupiter",    FocusOn<6>},
};
// clang-format on

// ---- North-East-Down --------------------------------------------------------------------------------------

/// The scale by which North-East-Down rows are read; other than 1, so that real lengths hold on all axes.
constexpr double kNedScale = 1.0001;

/// Takes the first word off `text`; empty when there is none.
std::string NextWord(std::string_view& text) {
  const std::size_t begin = std::min(text.find_first_not_of(' '), text.size());
  const std::size_t end = std::min(text.find(' ', begin), text.size());
  std::string word(text.substr(begin, end - begin));
  text.remove_prefix(end);
  return word;
}

void NorthEastDown(TitleKeywords& found) {
  const std::string title = LowerText(MessageUserToPlot);
  std::string numbers = UpperText(title.substr(title.find(kNedWord) + kNedWord.size()));
  if (numbers.find('.') != kAbsent) std::replace(numbers.begin(), numbers.end(), ',', ' ');

  std::string_view rest = numbers;
  const std::string latitude = NextWord(rest);
  const std::string longitude = NextWord(rest);
  const std::string distance = NextWord(rest);
  found.latitude = ValText(latitude);
  // A longitude longer than the latitude loses its tail: the users' titles are written for that.
  found.longitude = ValText(std::string_view(longitude).substr(0, latitude.size()));
  found.distance = ValText(distance);
  found.forcedScale = kNedScale;
  USERFLAG.NedInput = 1.0;
}

// ---- the pass ---------------------------------------------------------------------------------------------

bool TitleHolds(const KeywordRow& row) {
  switch (row.match) {
    case lower:
      return LowerText(MessageUserToPlot).find(row.word) != kAbsent;
    case upper:
      return UpperText(MessageUserToPlot).find(row.word) != kAbsent;
    case exact:
      return MessageUserToPlot.find(row.word) != kAbsent;
  }
  return false;
}

}  // namespace

TitleKeywords StartKeywordPass() {
  PenUpMode = 0;
  PenUpLabelMode = 0;
  ColumnMode = 0;
  EMSystem = 0;
  InputInKm = false;
  ValColour = 0;
  ValAxis = 3;
  QuaterScalarLast = 0;
  MoonFocus = 0;
  FocusBody = 4;
  USERFLAG.LogoScale = 0.0;
  USERFLAG.NedInput = 0.0;
  return {};
}

void Extraction_information_mots_clef(KeywordStage stage, TitleKeywords& found) {
  bool matched = false;
  for (const KeywordRow& row : kKeywordRows) {
    if (row.stage != stage) continue;
    if (row.tried == always) matched = false;
    if (matched || !TitleHolds(row)) continue;
    matched = true;
    row.effect(found);
    RemoveWord(row.removed, MessageUserToPlot);
  }
  if (stage == beforeRows) InputInKm = !found.LengthInMetres;
}

std::vector<std::string_view> SearchedKeywords() {
  std::vector<std::string_view> words;
  for (const KeywordRow& row : kKeywordRows)
    words.push_back(row.word);
  return words;
}

void EndKeywordPass() {
  MessageUserToPlot.erase(MessageUserToPlot.find_last_not_of(' ') + 1);
}

void RemoveWord(std::string_view word, std::string& title) {
  const std::size_t begin = title.find(word);
  if (word.empty() || begin == kAbsent) return;
  const std::string_view behind = std::string_view(title).substr(begin + word.size());
  if (CharacterCount(behind) <= 1) {
    title.erase(begin);
  } else {
    title.replace(begin, word.size(), 1, ' ');
  }
}

}  // namespace quorb
