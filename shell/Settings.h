#pragma once

#include <array>
#include <string>

namespace quorb {

/// Sections of the settings store.
inline constexpr const char* kSectionApp = "App";
inline constexpr const char* kSectionUse = "Use";

/// Slots of the options in their transport form: the fields of USERFLAG that are stored, as texts.
inline constexpr int kOptionSlots = 101;
extern std::array<std::string, kOptionSlots> OptionSlots;

/// Key of one of the six single settings of section "Use", by its rank 0 to 5: Earth texture, Moon texture,
/// main keyword, satellite size, Check3, Check4.
std::string SingleSettingKey(int rank);

/// Key of an option slot, 0 to 100.
std::string SlotKey(int slot);

/// Copies the option panel into USERFLAG. A colour outside 0 to 255 is clamped, in its text box too.
void OptionsRead();

/// Shows the slots on the option panel, unless all of them are 0.
void OptionAffecteUser();

/// Mode 1 copies USERFLAG into the slots; any other mode copies the slots into USERFLAG, with the colours
/// clamped to 0 to 255. The slot of the cubic view is always written, never read.
void OptionsPack(int mode);

/// Mode 1 packs and stores the slots. Any other mode reads them; `noneStored` becomes -1 when all are 0, and
/// they are unpacked otherwise.
void OptionsLoadSave(int mode, int& noneStored);

}  // namespace quorb
