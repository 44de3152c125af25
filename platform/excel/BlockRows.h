#pragma once

#include <string_view>

#include "SheetLink.h"

namespace quorb {

/// Gives the clipboard's text of a block on as SheetLink::BlockText tells, piece after piece. The application
/// puts a cell that holds a TAB or a line end into double quotes, its own doubled: such a cell becomes plain
/// text with blanks in their place. Events are let through before each
/// piece.
/// @param text UTF-16: rows that end in CR LF, cells parted by TABs.
/// @param keepsFirst the first cell stands as it came.
/// @return 5 when the sink wanted no more.
SheetFault GiveBlockRows(std::wstring_view text, bool keepsFirst, BlockTextSink& sink);

}  // namespace quorb
