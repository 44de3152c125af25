#include "DataFile.h"

#include <memory>

#include "DataChannel.h"
#include "Dialogs.h"
#include "Faults.h"
#include "FileAccess.h"
#include "LineReader.h"
#include "NumberText.h"
#include "TextDecoding.h"
#include "TextHelpers.h"

namespace quorb {

namespace {

constexpr int kDataChannel = 1;
constexpr int kFailuresLogged = 10;

struct Channel {
  std::unique_ptr<MappedFile> file;
  LineReader lines;
};

Channel channel;
int lineFailures = 0;

bool IsOpen(int number) {
  return number == kDataChannel && channel.file != nullptr;
}

bool IsSilent(int errorNumber) {
  switch (errorNumber) {
    case kFaultFileNotFound:
    case kFaultBadFileName:
    case kFaultBadCall:
    case kFaultBusy:
    case kFaultNoObject:
    case kFaultNoNamedArgument:
    case kFaultPathAccess:
    case kFaultPermissionDenied:
    case kFaultApplication:
      return true;
    default:
      return false;
  }
}

}  // namespace

void OpenfileW(const std::string& NameTempo, int number, int& ErrorNumber, LoaderWindow& window) {
  CloseChannel(number);
  ErrorNumber = kFaultNone;
  if (number != kDataChannel) {
    ErrorNumber = kFaultBadFileName;
  } else {
    channel.file = CurrentFileAccess().Map(NameTempo, ErrorNumber);
    if (channel.file != nullptr) channel.lines = LineReader(channel.file->Bytes());
  }
  if (ErrorNumber == kFaultNone) {
    window.AppendLog(NameTempo + " is open");
    return;
  }
  const std::string description = FaultText(ErrorNumber);
  window.AppendLog(NameTempo + " is NOT open, error:" + std::to_string(ErrorNumber) + " " + description);
  if (!IsSilent(ErrorNumber) && UpperText(description).find("CLIPBOARD") != std::string::npos) {
    CurrentDialogs().MessageBox(description, "Error", kBoxOk);
  }
}

// A part that is gone reads as zero bytes, which hold no line end: only the last line can reach into it.
bool NextLine(int number, std::string_view& line) {
  if (!IsOpen(number) || !channel.lines.Next(line)) return false;
  return !channel.lines.AtEnd() || !channel.file->Shrunk();
}

bool ChannelLostPart(int number) {
  return IsOpen(number) && channel.file->LostPart();
}

bool ChannelShrunk(int number) {
  return IsOpen(number) && channel.file->Shrunk();
}

void LinInputW(int number, std::string& lin, LoaderWindow& window) {
  std::string_view bytes;
  if (NextLine(number, bytes)) {
    lin = DecodeText(bytes);
    return;
  }
  ++lineFailures;
  if (lineFailures >= kFailuresLogged) return;
  const int error = IsOpen(number) ? kFaultPastEndOfFile : kFaultBadFileName;
  window.AppendLog("error:" + std::to_string(error) + " " + FaultText(error));
}

bool AtEndOfFile(int number) {
  return !IsOpen(number) || channel.lines.AtEnd();
}

void CloseChannel(int number) {
  if (number == kDataChannel) channel = Channel();
}

DataFileHeader ReadHeader(std::string_view lin) {
  DataFileHeader header;
  const std::size_t tab1 = lin.find('\t');
  const std::size_t tab2 = tab1 == lin.npos ? lin.npos : lin.find('\t', tab1 + 1);
  if (tab2 == lin.npos) return header;
  header.source = lin.substr(tab1 + 1, tab2 - tab1 - 1);
  const std::size_t tab3 = lin.find('\t', tab2 + 1);
  if (tab3 != lin.npos) header.source += "/" + std::string(lin.substr(tab2 + 1, tab3 - tab2 - 1));

  const std::size_t equals = lin.find('=', tab2 + 1);
  if (equals == lin.npos) return header;
  const std::size_t formulaEnd = lin.find('\t', equals);
  if (formulaEnd == lin.npos) return header;
  header.formula = lin.substr(equals, formulaEnd - equals);

  const std::size_t scaleEnd = lin.find('\t', formulaEnd + 1);
  if (scaleEnd == lin.npos) return header;
  header.scale = ValText(lin.substr(formulaEnd + 1, scaleEnd - formulaEnd - 1));

  const std::size_t titleEnd = lin.find('\t', scaleEnd + 1);
  header.title = lin.substr(scaleEnd + 1, titleEnd == lin.npos ? lin.npos : titleEnd - scaleEnd - 1);
  if (titleEnd == lin.npos) return header;
  const std::size_t dateEnd = lin.find('\t', titleEnd + 1);
  header.date = lin.substr(titleEnd + 1, dateEnd == lin.npos ? lin.npos : dateEnd - titleEnd - 1);
  return header;
}

}  // namespace quorb
