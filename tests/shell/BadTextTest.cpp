#include <cmath>

#include "ControlNames.h"
#include "WindowFixture.h"

namespace quorb {
namespace {

class BadTextTest : public WindowFixture {
 protected:
  BadTextTest() { Load(); }

  /// Puts the text into every field of the window, one behind another.
  static void FillEveryField(const std::string& text) {
    for (const NamedControl& named : NamedControls(*frmMain)) {
      if (TextBox* const* const field = std::get_if<TextBox*>(&named.control)) (*field)->text = text;
      if (ComboBox* const* const list = std::get_if<ComboBox*>(&named.control)) (*list)->text = text;
    }
  }

  static void ExpectFiniteOptions(const std::string& text) {
    for (const std::string_view name : FieldNames()) {
      for (const double* number : FieldNumbers(USERFLAG, name))
        EXPECT_TRUE(std::isfinite(*number)) << name << " at " << text.substr(0, 20);
    }
  }

  const std::vector<std::string> texts = {
      "letters", "1e300", "1e999", "-1e300", "", " ", "nan", std::string(10000, '9'), std::string(10000, 'k'),
      "\xFF\xFE"};
};

TEST_F(BadTextTest, AnyTextInAnyFieldLeavesFiniteOptions) {
  for (const std::string& text : texts) {
    FillEveryField(text);
    frmMain->Command1.clicked();
    ExpectFiniteOptions(text);
    frmMain->Command2.clicked();
    ExpectFiniteOptions(text);
  }
  frmMain->Command3.clicked();
  EXPECT_EQ(frmMain->Text4[0].text.Get(), "1");
  EXPECT_EQ(frmMain->Text5[15].text.Get(), "10");
}

TEST_F(BadTextTest, ColoursComeBackIntoTheirBounds) {
  const std::pair<const char*, const char*> colours[] = {{"1e300", "255"}, {"-1", "0"}, {"300", "255"}};
  for (const auto& [typed, shown] : colours) {
    frmMain->Text5[17].text = typed;
    frmMain->Command2.clicked();
    EXPECT_EQ(frmMain->Text5[17].text.Get(), shown);
  }
}

TEST_F(BadTextTest, WhatWasSavedComesBackAtTheNextStart) {
  for (const std::string& text : texts) {
    FillEveryField(text);
    frmMain->Command1.clicked();
    Load();
    ExpectFiniteOptions(text);
  }
}

}  // namespace
}  // namespace quorb
