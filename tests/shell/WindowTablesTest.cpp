#include "WindowTables.h"

#include <map>
#include <set>

#include "ControlNames.h"
#include "FakeDirectories.h"
#include "MenuTables.h"
#include "ToolbarLayout.h"
#include "WindowFixture.h"
#include "frmDialog.h"
#include "frmVideo.h"

namespace quorb {
namespace {

template <typename T>
std::string CaptionOf(const T& control) {
  if constexpr (requires { control.caption.Get(); }) {
    return control.caption.Get();
  } else if constexpr (requires { control.caption; }) {
    return control.caption;
  } else {
    return {};
  }
}

template <typename T>
std::string ValueOf(const T& control) {
  if constexpr (requires { control.value.Get(); }) {
    return std::to_string(static_cast<int>(control.value.Get()));
  } else if constexpr (requires { control.text.Get(); }) {
    return control.text.Get();
  } else {
    return {};
  }
}

DesignRow RowOf(const NamedControl& named) {
  return std::visit(
      [&](const auto* control) {
        return DesignRow{named.name, CaptionOf(*control), ValueOf(*control), control->toolTip.Get(),
                         control->visible.Get()};
      },
      named.control);
}

class WindowTablesTest : public WindowFixture {
 protected:
  WindowTablesTest() : window(Create()) { Take(NamedControls(window)); }
  ~WindowTablesTest() override { ForgetVideoWindow(); }

  void Take(const std::vector<NamedControl>& all) {
    controls.clear();
    for (const NamedControl& named : all)
      EXPECT_TRUE(controls.emplace(named.name, named).second) << named.name << " stands twice";
  }

  void ExpectAllCompared() const {
    for (const auto& [name, control] : controls)
      EXPECT_TRUE(compared.contains(name)) << name << " stands in no table";
  }

  void Compare(const std::vector<DesignRow>& rows) {
    for (const DesignRow& wanted : rows) {
      ASSERT_TRUE(controls.contains(wanted.name)) << wanted.name;
      const DesignRow row = RowOf(controls.at(wanted.name));
      EXPECT_EQ(row.caption, wanted.caption) << wanted.name;
      EXPECT_EQ(row.value, wanted.value) << wanted.name;
      EXPECT_EQ(row.toolTip, wanted.toolTip) << wanted.name;
      EXPECT_EQ(row.visible, wanted.visible) << wanted.name;
      EXPECT_TRUE(compared.insert(wanted.name).second) << wanted.name << " stands twice";
    }
  }

  void CompareMenus() {
    std::map<std::string, std::vector<const Menu*>> places;
    for (const MenuRow& wanted : MenuRows()) {
      ASSERT_TRUE(controls.contains(wanted.name)) << wanted.name;
      const Menu* const menu = std::get<Menu*>(controls.at(wanted.name).control);
      EXPECT_EQ(menu->caption, wanted.caption) << wanted.name;
      EXPECT_EQ(menu->visible, wanted.visible) << wanted.name;
      EXPECT_TRUE(menu->enabled) << wanted.name;
      EXPECT_FALSE(menu->checked) << wanted.name;
      places[wanted.place].push_back(menu);
      EXPECT_TRUE(compared.insert(wanted.name).second) << wanted.name << " stands twice";
    }
    for (const MenuRow& row : MenuRows())
      ComparePlace(row.name, std::get<Menu*>(controls.at(row.name).control)->entries, places[row.name]);
    ComparePlace("menu bar", window.menuBar, places[""]);
  }

  static void ComparePlace(const std::string& name, const std::vector<Menu*>& entries,
                           const std::vector<const Menu*>& wanted) {
    EXPECT_EQ(std::vector<const Menu*>(entries.begin(), entries.end()), wanted) << name;
  }

  void CompareButtons(const std::string& bar, ToolButtonStyle style, const std::vector<ButtonRow>& rows) {
    for (const ButtonRow& wanted : rows) {
      const std::string name = bar + "(" + std::to_string(wanted.position) + ")";
      ASSERT_TRUE(controls.contains(name)) << name;
      const ToolButton& button = *std::get<ToolButton*>(controls.at(name).control);
      const bool isSeparator = wanted.key.empty();
      EXPECT_EQ(button.key, wanted.key) << name;
      EXPECT_EQ(button.toolTip.Get(), wanted.toolTip) << name;
      EXPECT_EQ(button.style, isSeparator ? ToolButtonStyle::separator : style) << name;
      EXPECT_EQ(button.image, wanted.image) << name;
      EXPECT_EQ(button.icon.Get().empty(), isSeparator) << name;
      EXPECT_EQ(button.Value(), wanted.key == "optMoon" ? 1 : 0) << name;
      EXPECT_TRUE(button.visible) << name;
      compared.insert(name);
    }
  }

  MainWindow& window;
  std::map<std::string, NamedControl> controls;
  std::set<std::string> compared;
};

TEST_F(WindowTablesTest, EveryControlIsAsItWasDesigned) {
  toolbarSet();
  Compare(FrameRows());
  Compare(CheckRows());
  Compare(PanelRows());
  Compare(StripRows());
  CompareMenus();
  CompareButtons("Toolbar1", ToolButtonStyle::push, ViewButtonRows());
  CompareButtons("ToolBoptions", ToolButtonStyle::twoState, OptionButtonRows());
  ExpectAllCompared();
  EXPECT_EQ(window.Toolbar1.Positions(), 16);
  EXPECT_EQ(window.ToolBoptions.Positions(), 10);
  EXPECT_EQ(window.Check9.Tag, "REAL_ISO");
}

TEST_F(WindowTablesTest, TheBarsHaveTheirBoundsAndSteps) {
  struct BarRow {
    const ScrollBar* bar;
    int max, largeChange;
  };
  const BarRow rows[] = {
      {&window.HScroll1, 10000, 100}, {&window.HScroll2, 16, 3},      {&window.HScroll3, 32000, 320},
      {&window.HScroll4, 1000, 100},  {&window.HScroll5, 1000, 100},  {&window.HScroll6, 16, 3},
      {&window.HScroll7, 100, 10},    {&window.HScroll8, 32000, 100}, {&window.HScroll10, 32000, 1000}};
  for (const BarRow& row : rows) {
    EXPECT_EQ(row.bar->min, 0);
    EXPECT_EQ(row.bar->max, row.max);
    EXPECT_EQ(row.bar->largeChange, row.largeChange);
  }
}

TEST_F(WindowTablesTest, EveryControlOfTheMovieWindowIsAsItWasDesigned) {
  ForgetVideoWindow();
  VideoWindow& video = frmVideo();
  Take(NamedControls(video));
  Compare(MovieRows());
  ExpectAllCompared();
  for (const ScrollBar* bar : {&video.HScroll1, &video.HScroll2})
    EXPECT_EQ(bar->min, 0);
  EXPECT_EQ(video.HScroll1.max, 1023);
  EXPECT_EQ(video.HScroll2.max, 16);
  EXPECT_EQ(video.Command1.Tag, "");
}

TEST_F(WindowTablesTest, EveryControlOfTheFileChooserIsAsItWasDesigned) {
  const FakeDirectories directories;
  DialogWindow chooser;
  Take(NamedControls(chooser));
  Compare(ChooserRows());
  ExpectAllCompared();
  EXPECT_EQ(chooser.form.Tag, "");
}

TEST_F(WindowTablesTest, EveryEntryThatTheUserCanChooseDoesSomething) {
  for (const MenuRow& row : MenuRows()) {
    const Menu& menu = *std::get<Menu*>(controls.at(row.name).control);
    const bool isCommand =
        menu.entries.empty() && menu.visible && row.place != "mnuEdit" && menu.caption != kSeparatorCaption;
    EXPECT_TRUE(!isCommand || menu.clicked) << row.name;
  }
}

TEST_F(WindowTablesTest, TheIconsOfABarAreDifferent) {
  toolbarSet();
  std::multiset<std::string> icons;
  for (ToolBar* bar : {&window.Toolbar1, &window.ToolBoptions}) {
    for (int position = 1; position <= bar->Positions(); ++position) {
      const std::string& icon = bar->Button(position).icon;
      if (!icon.empty()) icons.insert(icon);
    }
  }
  EXPECT_EQ(icons.size(), 19U);
  EXPECT_EQ(std::set<std::string>(icons.begin(), icons.end()).size(), icons.size());
}

}  // namespace
}  // namespace quorb
