#include <utility>

#include "ViewerOnBus.h"

namespace quorb {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

constexpr double kTolerance = 0.004;

class AutomationViewer : public ViewerOnBus {
 protected:
  void StartOnFile() {
    viewer_ = Start(QUORB_EXAMPLES "/km.qbv");
    ASSERT_TRUE(WaitUntilFree());
  }
  double DifferenceFrom(const PixelImage& expected) const { return FindDifference(Plot(), expected).share; }
  /// The plot once two pictures of it are the same; `isReached` holds for it.
  PixelImage SettledPlot(const std::function<bool(const PixelImage&)>& isReached) const {
    PixelImage last = Plot();
    EXPECT_TRUE(WaitFor([&] {
      const PixelImage before = std::exchange(last, Plot());
      return before.rgb == last.rgb && isReached(last);
    }));
    return last;
  }

  std::unique_ptr<Background> viewer_;
};

TEST_F(AutomationViewer, TheObjectTellsItsMembersAndProperties) {
  StartOnFile();
  const std::string text =
      run.Run("/usr/bin/gdbus", std::string("introspect --session --xml -d ") + kBusName + " -o " + kBusPath)
          .out;
  for (const char* member : {R"(  <interface name="org.quorb.QuorbExcelPro.ClassInterface">
    <method name="InterFaceXls">
      <arg name="MessageUserToPlot" type="s" direction="in"/>
      <arg name="FlagOptionToPlot" type="i" direction="in"/>
    </method>
    <method name="GlrayonXls">
      <arg name="str" type="s" direction="in"/>
      <arg name="FactorScale" type="d" direction="in"/>
    </method>
    <method name="GlrayonXlsT">
      <arg name="str" type="s" direction="in"/>
      <arg name="FactorScale" type="d" direction="in"/>
    </method>
    <method name="GlEventsXls">
      <arg name="str" type="s" direction="in"/>
      <arg name="FactorScale" type="d" direction="in"/>
    </method>
)",
                             R"(<property name="LastPoint" type="i" access="read"/>)",
                             R"(<property name="Busy" type="b" access="read"/>)"}) {
    EXPECT_THAT(text, HasSubstr(member));
  }
  const std::string properties = R"(<interface name="org.freedesktop.DBus.Properties">)";
  EXPECT_THAT(text, HasSubstr(properties));
  EXPECT_EQ(text.find(properties), text.rfind(properties))
      << "readers refuse an interface that stands there twice";
}

TEST_F(AutomationViewer, PushedPointsLookAsThoseOfAFile) {
  run.Write("pushed.qbv", DataFileText("=0.01+LEN(\"Pushed kmday\")+MAX(A2:C6)+MAX(D2:D6)",
                                       "-9000\t-9000\t0\t45000\r\n"
                                       "9000\t-9000\t0\t45001\r\n"
                                       "9000\t9000\t3000\t45002\r\n"
                                       "-9000\t9000\t0\t45003\r\n"
                                       "-9000\t-8000\t0\t45004.5\r\n"));
  const PixelImage expected = Rendered("pushed.qbv");
  StartOnFile();
  ASSERT_TRUE(WaitForWindow("Quorb"));
  ASSERT_GT(DifferenceFrom(expected), 5 * kTolerance) << "another plot is on the screen";

  EXPECT_EQ(Call("InterFaceXls", "'Pushed' 0").out, "()\n");
  EXPECT_EQ(
      Call("GlrayonXls", R"("'-9000\t-9000\t0\r\n9000\t-9000\t0\r\n9000\t9000\t3000\r\n-9000\t9000\t0\r\n)"
                         R"(-9000\t-8000\t0\r\n'" 0.01)")
          .out,
      "()\n");
  EXPECT_EQ(Call("GlrayonXlsT", R"("'45000\r\n45001\r\n45002\r\n45003\r\n45004.5\r\n'" 1)").out, "()\n");
  EXPECT_EQ(Read("Title"), "(<'Pushed'>,)");
  EXPECT_EQ(Read("LastPoint"), "(<4>,)");
  double share = 1;
  EXPECT_TRUE(WaitFor([&] { return (share = DifferenceFrom(expected)) <= kTolerance; })) << share;
  EXPECT_TRUE(viewer_->Runs());
}

/// The box around the pixels that differ.
struct Box {
  int left = 1 << 30, right = -1, top = 1 << 30, bottom = -1;
};
Box BoxOfDifference(const PixelImage& a, const PixelImage& b) {
  Box box;
  for (int y = 0; y < a.height; ++y) {
    for (int x = 0; x < a.width; ++x) {
      int off = 0;
      for (std::size_t channel = 0; channel < 3; ++channel)
        off = std::max(off, std::abs(a.rgb[a.At(x, y) + channel] - b.rgb[b.At(x, y) + channel]));
      if (off <= kDefaultThreshold) continue;
      box = {std::min(box.left, x), std::max(box.right, x), std::min(box.top, y), std::max(box.bottom, y)};
    }
  }
  return box;
}

TEST_F(AutomationViewer, PushedEventsColourTheirPartOfTheLine) {
  StartOnFile();
  ASSERT_TRUE(WaitForWindow("Quorb"));
  std::filesystem::copy(QUORB_EXAMPLES "/km.qbv", run.File("km.qbv"));
  const PixelImage ofFile = Rendered("km.qbv");
  ASSERT_TRUE(WaitFor([&] { return DifferenceFrom(ofFile) <= kTolerance; }));
  // Above the Earth. Events at first behind the last point.
  Call("InterFaceXls", "'Events' 1");
  Call("GlrayonXls",
       R"("'-8000\t-4000\t7000\r\n-4000\t-4000\t7000\r\n4000\t-4000\t7000\r\n8000\t-4000\t7000\r\n'" 0.5)");
  Call("GlrayonXlsT", R"("'1\r\n2\r\n3\r\n4\r\n'" 1)");
  Call("GlEventsXls", R"("'90\tS\r\n91\tE\r\n92\tS\r\n'" 1)");
  ASSERT_TRUE(WaitFor([&] { return Read("NbEvents") == "(<2>,)"; }));
  const PixelImage before = SettledPlot(
      [&](const PixelImage& plot) { return FindDifference(plot, ofFile).share > 5 * kTolerance; });
  Call("GlEventsXls", R"("'2\tS\r\n3.5\tE\r\n92\tS\r\n'" 1)");
  const Box box = BoxOfDifference(
      SettledPlot([&](const PixelImage& plot) { return BoxOfDifference(plot, before).right >= 0; }), before);
  // A segment has the colour of its end, and the event lasts from time 2 to time 3.5: the line from the first
  // point to the third, with the shadows of the second and the third. The farthest point, 11358 away, comes
  // to 80 units: 4000 are 28.17 of them and 7000 are 49.31. The start looks along (1, 1, 1), 200 units over
  // the height of 750 pixels: with L = 3.75 sqrt(2/3) = 3.062 a point lies (x + y) 0.866 L to the left of the
  // middle, and ((x - y) / 2 + z) L above it. The cube's faces are at -140.
  constexpr double kMiddleX = 640, kMiddleY = 375;
  EXPECT_NEAR(box.left, kMiddleX, 4) << "the third point: x + y = 0";
  EXPECT_NEAR(box.right, kMiddleX + 446, 4) << "a shadow: x + y = -140 - 28.17";
  EXPECT_NEAR(box.top, kMiddleY - 322, 4) << "the second one's on Y: (-28.17 + 140) / 2 + 49.31 = 105.2";
  EXPECT_NEAR(box.bottom, kMiddleY + 342, 4) << "the third one's on Z: 28.17 - 140 = -111.8";
}

TEST_F(AutomationViewer, ARowTooManyIsAnErrorWithItsNumber) {
  StartOnFile();
  std::string rows;
  for (int i = 0; i < 65; ++i)
    rows += R"(1\t2\t3\r\n)";
  const ProgramOutcome outcome = Call("GlrayonXls", "\"'" + rows + "'\" 1");
  EXPECT_NE(outcome.status, 0);
  EXPECT_EQ(
      outcome.err,
      "Error: GDBus.Error:org.quorb.QuorbExcelPro.Error.OutOfRange: 9: Subscript out of range: row 65; there "
      "are 64 rows\n");
  EXPECT_EQ(Read("LastPoint"), "(<180>,)");
  EXPECT_THAT(Call("GlEventsXls", R"("'1\tS\r\n1\tS\r\n1\tS\r\n1\tS\r\n1\tS\r\n'" 1)").err,
              HasSubstr("9: Subscript out of range: row 5; there are 4 rows"));
}

TEST_F(AutomationViewer, WrongCallsAreRefused) {
  StartOnFile();
  const std::string address = "call --session -d org.quorb.QuorbExcelPro -o /org/quorb/QuorbExcelPro -m ";
  EXPECT_THAT(Call("GlrayonXls", "a").err,
              HasSubstr("The arguments of GlrayonXls are not those of the interface"));
  EXPECT_THAT(Call("InterFaceXls", "Pushed").err, HasSubstr("InvalidArgs"));
  EXPECT_THAT(Call("Delete", "").err, HasSubstr("UnknownMethod: There is no member Delete"));
  const std::string properties = address + "org.freedesktop.DBus.Properties.";
  EXPECT_THAT(run.Run("/usr/bin/gdbus", properties + "Set " + kBusInterface + " Title \"<'x'>\"").err,
              HasSubstr("PropertyReadOnly: Title can only be read"));
  EXPECT_THAT(run.Run("/usr/bin/gdbus", properties + "Get " + kBusInterface + " Colour").err,
              HasSubstr("UnknownProperty: There is no property Colour"));
  EXPECT_EQ(Read("Title"), "(<'Long orbit over the north'>,)");
}

TEST_F(AutomationViewer, ACallDuringALoadIsRefusedAndChangesNothing) {
  viewer_ = Start("");
  // The load waits behind this box.
  ASSERT_TRUE(WaitForWindow("Excel not running!"));
  const std::string title = Read("Title");
  EXPECT_EQ(Read("Busy"), "(<true>,)");
  const ProgramOutcome outcome = Call("InterFaceXls", "'Pushed' 1");
  EXPECT_NE(outcome.status, 0);
  EXPECT_THAT(outcome.err, StartsWith("Error: GDBus.Error:org.quorb.QuorbExcelPro.Error.Busy: The viewer"));
  EXPECT_THAT(Call("GlrayonXls", R"("'1\t2\t3\r\n'" 1)").err, HasSubstr("Error.Busy"));
  EXPECT_EQ(Read("Title"), title);
  EXPECT_EQ(Read("LastPoint"), "(<0>,)");
  PressReturnIn("Excel not running!");
  ASSERT_TRUE(WaitUntilFree());
  EXPECT_EQ(Call("InterFaceXls", "'Pushed' 1").status, 0);
  EXPECT_EQ(Read("Title"), "(<'Pushed'>,)");
}

TEST_F(AutomationViewer, ABlockThatIsTooLongShowsTheMessageAndIsRead) {
  StartOnFile();
  const std::string rows = R"(10\t0\t0\r\n0\t20\t0)";  // 14 characters once they are read
  run.Write("block.txt", "'" + rows + std::string(65001 - 14 - 2, ' ') + R"(\r\n')");
  const auto client = std::make_unique<Background>(
      std::vector<std::string>{"/bin/sh", "-c",
                               "exec gdbus " + Words(std::string(kBusInterface) + ".GlrayonXls", kBusName) +
                                   "\"$(cat '" + run.File("block.txt") + "')\" 1 >'" + run.File("out.txt") +
                                   "'"},
      std::vector<std::string>{});
  ASSERT_TRUE(WaitForWindow("Some Data are to be lost"));
  EXPECT_EQ(Read("Busy"), "(<true>,)");
  EXPECT_THAT(Call("InterFaceXls", "'Meanwhile' 1").err, HasSubstr("Error.Busy"));
  EXPECT_EQ(Read("LastPoint"), "(<180>,)");
  EXPECT_TRUE(client->Runs()) << "the answer comes when the message was closed";
  PressReturnIn("Some Data are to be lost");
  EXPECT_EQ(client->Wait(std::chrono::seconds(20)), 0);
  EXPECT_EQ(Read("LastPoint"), "(<1>,)");
  EXPECT_EQ(Read("Title"), "(<'Long orbit over the north'>,)");
  EXPECT_FALSE(HasWindow("Some Data are to be lost"));
}

TEST_F(AutomationViewer, AFactorThatIsNoFiniteNumberIsAnErrorWithItsNumber) {
  StartOnFile();
  const std::string calls[] = {"GlrayonXls", "GlrayonXlsT", "GlEventsXls"};
  for (const std::string& member : calls) {
    const ProgramOutcome outcome = Call(member, R"("'1\t2\t3\r\n'" inf)");
    EXPECT_NE(outcome.status, 0);
    EXPECT_THAT(outcome.err, StartsWith("Error: GDBus.Error:org.freedesktop.DBus.Error.InvalidArgs: 5: "));
    EXPECT_THAT(outcome.err, HasSubstr(": the factor is no finite number"));
  }
  EXPECT_EQ(Read("LastPoint"), "(<180>,)");
}

TEST_F(AutomationViewer, WithoutASessionBusThePlotIsShownAllTheSame) {
  std::filesystem::copy(QUORB_EXAMPLES "/km.qbv", run.File("km.qbv"));
  const PixelImage expected = Rendered("km.qbv");
  viewer_ = Start(run.File("km.qbv"), {"DBUS_SESSION_BUS_ADDRESS="});
  ASSERT_TRUE(WaitForWindow("Quorb"));
  double share = 1;
  EXPECT_TRUE(WaitFor([&] { return (share = DifferenceFrom(expected)) <= kTolerance; })) << share;
  EXPECT_EQ(OwnNames(), std::vector<std::string>());
  EXPECT_TRUE(viewer_->Runs());
}

TEST_F(AutomationViewer, TheFirstViewerHasTheNameAndLeavesItToTheNext) {
  StartOnFile();
  const std::vector<std::string> alone = OwnNames();
  ASSERT_EQ(alone.size(), 2U);
  EXPECT_EQ(alone[0], kBusName);
  const std::string& first = alone[1];
  EXPECT_THAT(first, testing::MatchesRegex("org\\.quorb\\.QuorbExcelPro\\.pid[0-9]+"));
  const auto next = Start(QUORB_EXAMPLES "/sun.qbv");
  ASSERT_TRUE(WaitFor([&] { return OwnNames().size() == 3; }));
  const std::string second = OwnNames()[1] == first ? OwnNames()[2] : OwnNames()[1];
  ASSERT_TRUE(WaitUntilFree(second));
  ASSERT_EQ(Call("InterFaceXls", "'To the second' 0", second).status, 0);
  EXPECT_EQ(Read("Title"), "(<'Long orbit over the north'>,)");
  EXPECT_EQ(Read("Title", first), "(<'Long orbit over the north'>,)");
  EXPECT_EQ(Read("Title", second), "(<'To the second'>,)");
  viewer_.reset();
  EXPECT_TRUE(WaitFor([&] { return Read("Title") == "(<'To the second'>,)"; }));
}

}  // namespace
}  // namespace quorb
