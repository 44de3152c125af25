#include "OemKvnReader.h"

#include <algorithm>
#include <utility>

#include "OemMetadata.h"
#include "StateText.h"

namespace quorb {

namespace {

constexpr std::string_view kVersionKey = "CCSDS_OEM_VERS";
constexpr std::size_t kFieldsOfState = 7;
constexpr std::size_t kFieldsOfStateWithAcceleration = 10;

/// The part of the message that a line stands in.
enum class Section { header, metadata, states, covariance };

ReadResult ReadDefinition(std::string_view line, std::size_t number, StateTable& out) {
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos) {
    return FaultAtLine(number, QuotedForMessage(line) + " is no \"KEYWORD = value\": correct the line");
  }
  const std::string clash = KeepOemEntry(TrimSpace(line.substr(0, equals)), line.substr(equals + 1), out);
  return clash.empty() ? ReadResult{} : FaultAtLine(number, clash);
}

ReadResult ReadState(std::string_view line, std::size_t number, StateTable& out) {
  const std::vector<std::string_view> fields = SplitWords(line);
  if (fields.size() != kFieldsOfState && fields.size() != kFieldsOfStateWithAcceleration) {
    return FaultAtLine(number,
                       "a state has " + std::to_string(fields.size()) +
                           " fields: write epoch, x, y, z, and three velocities, with or without three "
                           "accelerations");
  }
  for (std::size_t i = 4; i < fields.size(); ++i) {
    if (!ParseNumberField(fields[i])) {
      return FaultAtLine(number,
                         QuotedForMessage(fields[i]) + " is no number: correct it or take the state out");
    }
  }
  const StateFault fault = AppendState({fields[0], fields[1], fields[2], fields[3]}, EpochForm::epoch, out);
  return fault.what.empty() ? ReadResult{} : FaultAtLine(number, fault.what);
}

/// Reads one line that is neither empty nor a comment, and moves `section` on.
ReadResult ReadLine(std::string_view line, std::size_t number, Section& section, StateTable& out) {
  switch (section) {
    case Section::metadata:
      if (line != "META_STOP") return ReadDefinition(line, number, out);
      section = Section::states;
      return {};
    case Section::covariance:
      if (line == "COVARIANCE_STOP") section = Section::states;
      return {};
    case Section::header:
    case Section::states:
      break;
  }
  if (line == "META_START") {
    section = Section::metadata;
    return {};
  }
  if (section == Section::header) return ReadDefinition(line, number, out);
  if (line == "COVARIANCE_START") {
    section = Section::covariance;
    return {};
  }
  return ReadState(line, number, out);
}

/// The failure of a message that stops in `section` before its end, or none.
ReadResult EndOfMessage(Section section, std::size_t lastLine, const StateTable& table) {
  if (section == Section::metadata) {
    return FaultAtLine(lastLine, "the file ends without META_STOP: it is cut off, fetch it again");
  }
  if (section == Section::covariance) {
    return FaultAtLine(lastLine, "the file ends without COVARIANCE_STOP: it is cut off, fetch it again");
  }
  if (table.time.empty()) {
    return FaultAtLine(lastLine, "the file ends without a state: states stand behind META_STOP, a line each");
  }
  return {};
}

}  // namespace

bool OemKvnReader::Recognises(std::string_view head) const {
  const std::string_view start = head.substr(std::min(head.find_first_not_of(" \t\r\n"), head.size()));
  return start.substr(0, kVersionKey.size()) == kVersionKey;
}

ReadResult OemKvnReader::Read(std::string_view text, StateTable& out) const {
  StateTable table;
  Section section = Section::header;
  LineWalk lines(text);
  while (lines.Next()) {
    const std::string_view line = TrimSpace(lines.Line());
    const bool comment =
        line == "COMMENT" || line.substr(0, 8) == "COMMENT " || line.substr(0, 8) == "COMMENT\t";
    if (line.empty() || comment) continue;
    ReadResult result = ReadLine(line, lines.Number(), section, table);
    if (!result.Ok()) return result;
  }
  ReadResult end = EndOfMessage(section, lines.Number(), table);
  if (end.Ok()) out = std::move(table);
  return end;
}

}  // namespace quorb
