#include "ToolbarLayout.h"

#include "WindowFixture.h"

namespace quorb {
namespace {

using Positions = std::vector<int>;

class ToolbarLayoutTest : public WindowFixture {
 protected:
  ToolbarLayoutTest() : window(Create()) {}

  std::string& Stored() { return settings.entries[{"UserQuorb/ToolBars", "5"}]; }
  const Positions& Order() const { return window.Toolbar1.order.Get(); }

  MainWindow& window;
  const Positions designed = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
};

TEST_F(ToolbarLayoutTest, AnOrderOfTheUsersOwnIsStoredAtOnce) {
  EXPECT_EQ(Order(), designed);
  window.Toolbar1.order = Positions{12, 3, 1};
  EXPECT_EQ(Stored(), "12 3 1");
}

TEST_F(ToolbarLayoutTest, ADoubleClickStoresTheOrderAndRefreshesTheDirectory) {
  window.Text6.text = "/images";
  window.Toolbar1.doubleClicked();
  EXPECT_EQ(Stored(), "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16");
  EXPECT_EQ(AppDir, "/images");
  EXPECT_EQ(window.Toolbar1.Button(15).toolTip.Get(), "Save Image /images");
}

TEST_F(ToolbarLayoutTest, AStoredOrderComesBackAndIsShown) {
  int refreshes = 0;
  window.Toolbar1.refresh = [&] { ++refreshes; };
  Stored() = " 16 2  1 ";
  RestoreToolbarLayout();
  EXPECT_EQ(Order(), (Positions{16, 2, 1}));
  EXPECT_EQ(refreshes, 1);
  EXPECT_EQ(Stored(), " 16 2  1 ") << "coming back stores nothing";
}

TEST_F(ToolbarLayoutTest, ATextThatIsNoOrderIsPassedOver) {
  for (const std::string text : {"", "  ", "one two", "1 2 2", "0 1", "1 17", "1,2", "99999999999 1", "-1"}) {
    Stored() = text;
    RestoreToolbarLayout();
    EXPECT_EQ(Order(), designed) << text;
  }
}

TEST_F(ToolbarLayoutTest, APositionStaysWithItsButtonInAnyOrder) {
  window.Toolbar1.order = Positions{16, 15, 12};
  EXPECT_EQ(window.Toolbar1.Button(12).key, "quorbxyz");
}

TEST_F(ToolbarLayoutTest, TheBarsShowTheirPicturesBehindTheLoadSequence) {
  MainWindow& loaded = Load();
  EXPECT_EQ(loaded.Toolbar1.Button(2).icon.Get(), "hand");
  EXPECT_EQ(loaded.Toolbar1.Button(2).image, 10);
  EXPECT_EQ(loaded.ToolBoptions.Button(1).icon.Get(), "satellite");
}

}  // namespace
}  // namespace quorb
