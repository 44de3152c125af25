#pragma once

namespace quorb {

/// What a command of the menus does about a failure: a missing file (53), a bad file name (52) and a bad
/// argument (5) are passed over in silence, any other is told in a message. The command goes on.
void TellMenuFault(int number);

}  // namespace quorb
