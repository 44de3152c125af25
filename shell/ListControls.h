#pragma once

#include "Controls.h"

namespace quorb {

/// A list, of which one entry or none is selected.
class ListBox : public Control {
 public:
  ListBox() {
    selected.accepts = [this](int wanted) {
      return wanted >= -1 && wanted < static_cast<int>(items.Get().size());
    };
  }

  Shown<std::vector<std::string>> items{*this, {}};
  /// Rank of the selected entry, -1 for none; its routine is the list's click routine.
  ControlValue<int> selected{*this, -1};
  /// Its event routine: the selected entry is clicked twice.
  std::function<void()> doubleClicked;

  /// Gives the list other entries, of which none is selected. No routine runs.
  void Fill(const std::vector<std::string>& entries) {
    selected.Design(-1);
    items = entries;
    Refresh();
  }

  /// The selected entry; empty for none.
  std::string Selected() const {
    return selected < 0 ? std::string() : items.Get()[static_cast<std::size_t>(selected.Get())];
  }
};

/// The list of drives: `drive` is the root of the one that is chosen.
class DriveBox : public ListBox {
 public:
  ControlValue<std::string> drive{*this, ""};
};

/// A list of what a directory holds. Another path that cannot be read is refused.
class DirectoryBox : public ListBox {
 public:
  ControlValue<std::string> path{*this, ""};
};

/// The files of a directory that suit a pattern.
class FileBox : public DirectoryBox {
 public:
  ControlValue<std::string> pattern{*this, "*.*"};
};

}  // namespace quorb
