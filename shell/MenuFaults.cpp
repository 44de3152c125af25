#include "MenuFaults.h"

#include "Dialogs.h"
#include "Faults.h"

namespace quorb {

void TellMenuFault(int number) {
  const bool silent = number == kFaultNone || number == kFaultFileNotFound || number == kFaultBadFileName ||
                      number == kFaultBadCall;
  if (!silent) CurrentDialogs().MessageBox(FaultText(number), "Error", kBoxOk);
}

}  // namespace quorb
