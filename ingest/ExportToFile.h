#pragma once

#include "RangeAnalysis.h"
#include "SheetSession.h"

namespace quorb {

/// Pours the ranges into a scratch workbook, laid out as a data file, and writes that table's text into
/// `session.outputName`. The scratch workbook is closed; the user's own is only read.
///
/// The file that was there stays, and the log tells why, when the spreadsheet is busy or goes away at any
/// step, when the header, the main range or the format of the table fails, when the user has gone to another
/// sheet meanwhile, and when the text cannot be had or written. Another range that the sheet refuses (1004)
/// leaves its columns empty; any other failure of one leaves the old file too.
///
/// Where the new workbook cannot be told from the source, which both have the same caption, AddRetries grows
/// and nothing else happens.
void ExportToFile(SheetSession& session, const PlotRanges& ranges, const SpecificationText& specification);

/// True when the last ExportToFile made no scratch workbook and is to be tried again.
bool ScratchIsSource(const SheetSession& session);

}  // namespace quorb
