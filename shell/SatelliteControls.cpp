#include "SatelliteControls.h"

#include <cstdint>
#include <string>
#include <vector>

#include "SatelliteShape.h"
#include "Thrusters.h"
#include "UserFlag.h"
#include "WholeNumber.h"
#include "frmMain.h"

namespace quorb {

void Combo2_InitList(int& count) {
  std::vector<std::string> names;
  names.reserve(kSatelliteShapes.size());
  for (const SatelliteShapeEntry& shape : kSatelliteShapes)
    names.emplace_back(shape.name);
  count = static_cast<int>(names.size());
  frmMain->Combo2.items = names;
  std::int32_t index = -1;
  AssignRounded(index, USERFLAG.SatelliteShape);
  if (ChooseShape(index)) frmMain->Combo2.text = names[static_cast<std::size_t>(index)];
}

void Combo2_Click() {
  ChooseShape(ShapeIndex(frmMain->Combo2.text.Get()));
}

void Check6_Click() {
  ShowSatAxes = frmMain->Check6.value;
}

void Check8_Click() {
  TextBox& field = frmMain->Text13;
  if (frmMain->Check8.value == 1) {
    field.visible = true;
  } else if (ReadThrusters(field.text.Get())) {
    field.visible = false;
  }
}

}  // namespace quorb
