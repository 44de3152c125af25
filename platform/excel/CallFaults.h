#pragma once

#include <oaidl.h>

#include "SheetLink.h"

namespace quorb {

/// The failure that the result of an automation call stands for. Numbers of the application come by
/// themselves (0x800A03EC is 1004, 0x800AC472 is 50290), those of the dispatching as 438, 448, 450, 13, 9 or
/// 6; no running application is 429, a refused call -2147418111 in each of its forms, a server that is gone
/// -2147417848, one that dies in the call -2147023170, an object that the user has closed 424. Any other
/// result is its own number.
SheetFault FaultOfResult(HRESULT result);

/// The same for a call that may have thrown an exception: its number and its description. The texts of the
/// exception are freed.
SheetFault FaultOfCall(HRESULT result, EXCEPINFO& exception);

}  // namespace quorb
