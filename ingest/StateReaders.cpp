#include "StateReaders.h"

#include <string>

#include "OemKvnReader.h"
#include "OemXmlReader.h"
#include "StateText.h"
#include "TableReader.h"

namespace quorb {

namespace {

constexpr std::size_t kHeadBytes = 4096;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

const OemKvnReader kOemKvn;
const OemXmlReader kOemXml;
const TableReader kTable;

/// Every reader, the choosiest first: a table has no mark of its own, so its reader takes what is left.
const StateReader* const kReaders[] = {&kOemKvn, &kOemXml, &kTable};

std::string ReaderNames() {
  std::string names;
  for (const StateReader* reader : kReaders) {
    if (!names.empty()) names += ", ";
    names += reader->Name();
  }
  return names;
}

}  // namespace

ReadResult ReadStates(std::string_view text, StateTable& out) {
  if (text.substr(0, kByteOrderMark.size()) == kByteOrderMark) text.remove_prefix(kByteOrderMark.size());
  if (TrimSpace(text).empty()) return FaultAtLine(1, "the file is empty: give one with states");
  for (const StateReader* reader : kReaders) {
    if (reader->Recognises(text.substr(0, kHeadBytes))) return reader->Read(text, out);
  }
  return FaultAtLine(1, "the file is of no kind that can be read: give one of " + ReaderNames());
}

}  // namespace quorb
