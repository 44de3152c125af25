#include "OemXmlReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorb {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

std::string Segment(const std::string& centre, const std::string& states) {
  return "<segment>\n<metadata>\n<OBJECT_NAME>PROBE</OBJECT_NAME>\n<CENTER_NAME> " + centre +
         " </CENTER_NAME>\n<REF_FRAME>ICRF</REF_FRAME>\n<TIME_SYSTEM>TDB</TIME_SYSTEM>\n</metadata>\n<data>\n"
         "<COMMENT>free text</COMMENT>\n" +
         states + "</data>\n</segment>\n";
}

std::string State(const std::string& epoch, const std::string& x, const std::string& y,
                  const std::string& z) {
  return "<stateVector>\n<EPOCH>" + epoch + "</EPOCH>\n<X units=\"km\">" + x + "</X>\n<Y>" + y + "</Y>\n<Z>" +
         z + "</Z>\n<X_DOT>0</X_DOT>\n</stateVector>\n";
}

/// The document: its first line is the XML declaration, the fifth one <segment>, the fourteenth the first
/// state.
std::string Message(const std::string& segments) {
  return "<?xml version=\"1.0\"?>\n<ndm>\n<oem id=\"CCSDS_OEM_VERS\" version=\"2.0\">\n<body>\n" + segments +
         "</body>\n</oem>\n</ndm>\n";
}

ReadResult Read(const std::string& text, StateTable& table) {
  return OemXmlReader().Read(text, table);
}

std::string ErrorOf(const std::string& text) {
  StateTable table;
  return Read(text, table).error;
}

TEST(OemXmlReader, RecognisesMarkup) {
  EXPECT_TRUE(OemXmlReader().Recognises("<?xml version=\"1.0\"?>"));
  EXPECT_TRUE(OemXmlReader().Recognises("\r\n <oem>"));
  EXPECT_FALSE(OemXmlReader().Recognises("time x y z"));
  EXPECT_FALSE(OemXmlReader().Recognises(""));
}

TEST(OemXmlReader, ReadsMetadataAndStates) {
  StateTable table;
  const ReadResult result =
      Read(Message(Segment("EARTH", State("2025-057T12:00:00.000Z", "236.5", " -5167.25 ", "4405.75") +
                                        State("2025-02-26T18:00:00", "1", "2", "3"))),
           table);
  EXPECT_EQ(result.error, "");
  EXPECT_EQ(table.objectName, "PROBE");
  EXPECT_EQ(table.centreName, "EARTH");
  EXPECT_EQ(table.frame, "ICRF");
  EXPECT_EQ(table.timeSystem, "TDB");
  EXPECT_THAT(table.time, ElementsAre(45714.5, 45714.75));
  EXPECT_THAT(table.x, ElementsAre(236.5, 1));
  EXPECT_THAT(table.y, ElementsAre(-5167.25, 2));
  EXPECT_THAT(table.z, ElementsAre(4405.75, 3));
}

TEST(OemXmlReader, ReadsAMessageThatIsTheRoot) {
  StateTable table;
  const std::string body = "<body>" + Segment("EARTH", State("2025-001T00:00:00", "1", "2", "3")) + "</body>";
  EXPECT_TRUE(Read("<oem>" + body + "</oem>", table).Ok());
  EXPECT_THAT(table.x, ElementsAre(1));
  EXPECT_TRUE(Read("<n:oem xmlns:n=\"urn:n\">" + body + "</n:oem>", table).Ok());
  EXPECT_THAT(table.x, ElementsAre(1));
}

TEST(OemXmlReader, JoinsSegmentsAndKeepsTheRepeatedEpoch) {
  StateTable table;
  const ReadResult result = Read(Message(Segment("EARTH", State("2025-001T00:00:00", "1", "2", "3")) +
                                         Segment("EARTH", State("2025-001T00:00:00", "1", "2", "3") +
                                                              State("2025-002T00:00:00", "4", "5", "6"))),
                                 table);
  EXPECT_EQ(result.error, "");
  EXPECT_THAT(table.time, ElementsAre(45658, 45658, 45659));
}

TEST(OemXmlReader, PassesOverCovarianceMatrices) {
  StateTable table;
  EXPECT_TRUE(Read(Message(Segment("EARTH", State("2025-001T00:00:00", "1", "2", "3") +
                                                "<covarianceMatrix><EPOCH>2025-001T00:00:00</EPOCH>"
                                                "<CX_X>1</CX_X></covarianceMatrix>\n")),
                   table)
                  .Ok());
  EXPECT_THAT(table.x, ElementsAre(1));
}

TEST(OemXmlReader, SegmentsOfTwoCentresAreRefused) {
  const std::string state = State("2025-001T00:00:00", "1", "2", "3");
  EXPECT_THAT(ErrorOf(Message(Segment("EARTH", state) + Segment("MOON", state))),
              StartsWith("line 26: CENTER_NAME changes from \"EARTH\" to \"MOON\""));
}

TEST(OemXmlReader, ValueThatCannotBeReadNamesItsLine) {
  EXPECT_EQ(ErrorOf(Message(Segment("EARTH", State("2025-001T00:00:00", "1", "abc", "3")))),
            "line 17: \"abc\" for y is no number: correct it or take the state out");
  EXPECT_EQ(ErrorOf(Message(Segment("EARTH", State("2025-001T00:00:00", "1", "2", "nan")))),
            "line 18: \"nan\" for z is no number: correct it or take the state out");
  EXPECT_EQ(ErrorOf(Message(Segment("EARTH", State("2025-001T00:00:00", "", "2", "3")))),
            "line 16: \"\" for x is no number: correct it or take the state out");
  EXPECT_THAT(ErrorOf(Message(Segment("EARTH", State("yesterday", "1", "2", "3")))),
              StartsWith("line 15: \"yesterday\" is no epoch: "));
}

TEST(OemXmlReader, LinesAreCountedWithCarriageReturnsToo) {
  std::string text = Message(Segment("EARTH", State("2025-001T00:00:00", "1", "abc", "3")));
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\n') text.insert(i++, 1, '\r');
  }
  EXPECT_THAT(ErrorOf(text), StartsWith("line 17: "));
}

TEST(OemXmlReader, ComponentThatIsMissingNamesTheStateVector) {
  EXPECT_EQ(ErrorOf(Message(Segment("EARTH",
                                    "<stateVector>\n<EPOCH>2025-001T00:00:00</EPOCH><X>1</X>"
                                    "<Y>2</Y></stateVector>"))),
            "line 14: the stateVector has no <Z>: add it");
}

TEST(OemXmlReader, ComponentInTwoPiecesIsRefused) {
  EXPECT_THAT(ErrorOf(Message(Segment("EARTH", State("2025-001T00:00:00", "1<b/>2", "2", "3")))),
              StartsWith("line 16: <X> holds more than a plain text"));
}

TEST(OemXmlReader, LengthInAnotherUnitIsRefused) {
  EXPECT_EQ(ErrorOf(Message(Segment("EARTH",
                                    "<stateVector><EPOCH>2025-001T00:00:00</EPOCH>\n"
                                    "<X units=\"m\">1</X><Y>2</Y><Z>3</Z></stateVector>"))),
            "line 15: the unit is \"m\": write positions in km");
}

TEST(OemXmlReader, LeapSecondIsRead) {
  StateTable table;
  EXPECT_TRUE(Read(Message(Segment("EARTH", State("2016-366T23:59:60Z", "1", "2", "3"))), table).Ok());
  EXPECT_THAT(table.time, ElementsAre(42736));
}

TEST(OemXmlReader, MessageThatIsCutOffIsRefused) {
  const std::string whole = Message(Segment("EARTH", State("2025-001T00:00:00", "1", "2", "3")));
  const std::string error = ErrorOf(whole.substr(0, whole.find("</stateVector>")));
  EXPECT_THAT(error, StartsWith("line "));
  EXPECT_THAT(error, HasSubstr("the XML is damaged"));
}

TEST(OemXmlReader, DocumentWithoutAMessageIsRefused) {
  EXPECT_EQ(ErrorOf("<?xml version=\"1.0\"?>\n<html><body/></html>"),
            "line 2: <html> holds no <oem>: only orbit ephemeris messages can be converted");
}

TEST(OemXmlReader, MessageWithoutAStateIsRefused) {
  EXPECT_THAT(ErrorOf(Message(Segment("EARTH", ""))), StartsWith("line 2: the message holds no state"));
}

}  // namespace
}  // namespace quorb
