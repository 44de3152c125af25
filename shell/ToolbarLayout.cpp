#include "ToolbarLayout.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "OptionPanel.h"
#include "SettingsStore.h"
#include "TextHelpers.h"
#include "frmMain.h"

namespace quorb {

namespace {

constexpr const char* kSectionToolBars = "UserQuorb/ToolBars";
constexpr const char* kLayoutKey = "5";

/// A picture of a bar: its number in the list of images, 0 for none, and its icon.
struct BarImage {
  int image;
  const char* icon;
};

constexpr BarImage kNoImage = {0, ""};

constexpr std::array<BarImage, 16> kViewImages = {{{7, "select"},
                                                   {10, "hand"},
                                                   {4, "magnifier"},
                                                   kNoImage,
                                                   {5, "zoom-out"},
                                                   {6, "zoom-in"},
                                                   kNoImage,
                                                   {149, "background"},
                                                   {105, "rotation"},
                                                   {84, "freeze"},
                                                   kNoImage,
                                                   {66, "axes"},
                                                   {258, "projections"},
                                                   kNoImage,
                                                   {27, "camera"},
                                                   {48, "film"}}};

constexpr std::array<BarImage, 10> kOptionImages = {{{1, "satellite"},
                                                     {2, "cube"},
                                                     {96, "earth"},
                                                     kNoImage,
                                                     {92, "moon"},
                                                     kNoImage,
                                                     {165, "local-frame"},
                                                     kNoImage,
                                                     {104, "options"},
                                                     {0, "pen-up"}}};

template <std::size_t Positions>
void SetImages(ToolBar& bar, const std::array<BarImage, Positions>& images) {
  for (std::size_t i = 0; i < Positions; ++i) {
    ToolButton& button = bar.Button(static_cast<int>(i + 1));
    button.image = images[i].image;
    button.icon = std::string(images[i].icon);
  }
}

/// Whole numbers between blanks; none when a word is no number.
std::vector<int> ReadPositions(std::string_view text) {
  std::vector<int> positions;
  for (text = Trim(text); !text.empty(); text = Trim(text)) {
    int position = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), position);
    if (error != std::errc()) return {};
    positions.push_back(position);
    text.remove_prefix(static_cast<std::size_t>(stop - text.data()));
  }
  return positions;
}

}  // namespace

void toolbarSet() {
  SetImages(frmMain->Toolbar1, kViewImages);
  SetImages(frmMain->ToolBoptions, kOptionImages);
}

void RestoreToolbarLayout() {
  ControlValue<std::vector<int>>& order = frmMain->Toolbar1.order;
  const std::vector<int> stored = ReadPositions(CurrentSettings().Read(kSectionToolBars, kLayoutKey, ""));
  if (stored.empty() || !order.accepts(stored)) return;
  order.Design(stored);
  frmMain->Toolbar1.Refresh();
}

void SaveToolbarLayout() {
  std::string layout;
  for (const int position : frmMain->Toolbar1.order.Get())
    layout += (layout.empty() ? "" : " ") + std::to_string(position);
  CurrentSettings().Write(kSectionToolBars, kLayoutKey, layout);
  ImageDirRefresh();
}

}  // namespace quorb
