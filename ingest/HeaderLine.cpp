#include "HeaderLine.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

#include "NumberPicture.h"
#include "NumberText.h"

namespace quorb {

namespace {

constexpr std::string_view kCellPicture = "0.0000000000";
constexpr std::string_view kScalePicture = "#0.0000000000";
constexpr const char* kMarker = "QuorbExcelPro data file";

std::string NameField(std::string name) {
  std::replace_if(
      name.begin(), name.end(),
      [](char c) { return static_cast<unsigned char>(c) < 32 || c == 127 || c == '=' || c == '"'; }, '_');
  return name;
}

std::string DateField(const std::tm& time) {
  std::ostringstream text;
  text.imbue(std::locale::classic());
  text << "Date " << std::put_time(&time, "%Y/%m/%d %H:%M:%S");
  return text.str();
}

}  // namespace

std::string DataFileHeaderLine(const HeaderLineFields& header) {
  return "From: \t" + NameField(header.sourceName) + "\t" + NameField(header.sheetName) + "\t" +
         header.formula + "\t" + WithDecimalMark(FormatPicture(header.scale, kScalePicture)) + "\t" +
         header.title + "\t" + DateField(header.written) + "\t" + kMarker + "\t\r\n";
}

void AppendCellNumber(std::string& out, double value) {
  out += WithDecimalMark(FormatPicture(value, kCellPicture));
}

}  // namespace quorb
