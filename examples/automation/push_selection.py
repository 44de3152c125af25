"""Shows the selected columns of a LibreOffice Calc sheet in the running viewer.

Put this file into the folder Scripts/python of the office's user profile, for instance
~/.config/libreoffice/4/user/Scripts/python, and select in a sheet

    X, Y, Z                             three columns,
    X, Y, Z, time                       four, with the time in days, or
    X, Y, Z, time, event time, event    six, with "S" or "E" for the start or the end of an event.

They may stand apart (hold Ctrl to select further ones). Then run, with Tools - Macros - Run Macro,

    push_selection     each axis fills the view by itself, or
    push_kilometres    one scale for all axes, with the Earth.

Rows whose X, Y, Z and, where there is one, time are not all numbers are left out. The viewer takes 64 points: of
more rows, 64 are taken that lie evenly among them, and the title says so. It takes 4 events.

Needs gdbus, and Python in the office; the packages of Debian are libglib2.0-bin and
libreoffice-script-provider-python.
"""

import re
import subprocess
import time

MOST_POINTS = 64
MOST_EVENTS = 4
# The office stands still meanwhile, and a viewer that loads from it gives up on it after five.
PATIENCE_SECONDS = 2
BUSY = "org.quorb.QuorbExcelPro.Error.Busy"
NO_VIEWER = "org.freedesktop.DBus.Error.ServiceUnknown"


def push_selection(*_):
    push(XSCRIPTCONTEXT.getDocument(), 1.0)


def push_kilometres(*_):
    push(XSCRIPTCONTEXT.getDocument(), 0.001)


def push(document, factor):
    rows = selected_rows(document)
    columns = len(rows[0])
    if columns not in (3, 4, 6):
        raise RuntimeError("Select three, four or six columns: X, Y, Z, time, event time, event.")
    points = [row[:4] for row in rows if are_numbers(row[:4])]
    if not points:
        raise RuntimeError("No selected row has numbers for X, Y, Z" + (" and time." if columns > 3 else "."))
    events = [row[4:] for row in rows if columns == 6 and are_numbers(row[4:5])]
    if len(events) > MOST_EVENTS:
        raise RuntimeError("The viewer takes %d events; %d are selected." % (MOST_EVENTS, len(events)))
    title = document.CurrentController.ActiveSheet.Name
    shown = thinned(points)
    if len(shown) < len(points):
        title += " (%d of %d rows)" % (len(shown), len(points))

    call("InterFaceXls", quoted(title), str(1 if events else 0))
    call("GlrayonXls", block(row[:3] for row in shown), repr(factor))
    if columns > 3:
        call("GlrayonXlsT", block(row[3:] for row in shown), "1.0")
    if events:
        call("GlEventsXls", block(events), "1.0")


def selected_rows(document):
    """The selected columns beside each other, down to the end of the shortest or of what the sheet uses."""
    selection = document.CurrentSelection
    if not hasattr(selection, "getDataArray") and not hasattr(selection, "getRangeAddresses"):
        raise RuntimeError("Select cells.")
    sheet = document.CurrentController.ActiveSheet
    used = sheet.createCursor()
    used.gotoEndOfUsedArea(False)
    last_used = used.RangeAddress.EndRow
    if hasattr(selection, "getRangeAddresses"):
        addresses = sorted(selection.RangeAddresses, key=lambda address: address.StartColumn)
    else:
        addresses = [selection.RangeAddress]
    columns = []
    for address in addresses:
        last = min(address.EndRow, max(last_used, address.StartRow))
        data = sheet.getCellRangeByPosition(
            address.StartColumn, address.StartRow, address.EndColumn, last
        ).getDataArray()
        columns.extend(zip(*data))
    return list(zip(*columns))


def are_numbers(cells):
    return all(isinstance(cell, float) for cell in cells)


def thinned(rows):
    if len(rows) <= MOST_POINTS:
        return rows
    step = (len(rows) - 1) / (MOST_POINTS - 1)
    return [rows[round(i * step)] for i in range(MOST_POINTS)]


def block(rows):
    return quoted("".join("\t".join(text(cell) for cell in row) + "\r\n" for row in rows))


def text(cell):
    """A cell in one line. An event of 1 is "1": the viewer looks at the last character."""
    return repr(cell).removesuffix(".0") if isinstance(cell, float) else " ".join(str(cell).split())


def quoted(words):
    """A text as gdbus reads it: in quotes, with escapes."""
    return "'" + re.sub(r"[^ -~]|[\\']", lambda found: "\\U%08x" % ord(found[0]), words) + "'"


def call(member, *arguments):
    """Calls a member; while the viewer is busy, again and again."""
    command = ["gdbus", "call", "--session", "--timeout", str(PATIENCE_SECONDS)]
    command += ["-d", "org.quorb.QuorbExcelPro", "-o", "/org/quorb/QuorbExcelPro"]
    command += ["-m", "org.quorb.QuorbExcelPro.ClassInterface." + member, *arguments]
    patient_until = time.monotonic() + PATIENCE_SECONDS
    while True:
        try:
            outcome = subprocess.run(command, capture_output=True, encoding="utf-8", errors="replace")
        except FileNotFoundError:
            raise RuntimeError("gdbus is not installed; the package of Debian is libglib2.0-bin.")
        if outcome.returncode == 0:
            return
        if BUSY not in outcome.stderr or time.monotonic() > patient_until:
            break
        time.sleep(0.1)
    if NO_VIEWER in outcome.stderr:
        raise RuntimeError("No viewer runs here: start QuorbExcelPro, as the same user and in the same session.")
    raise RuntimeError("%s did not reach the plot. %s" % (member, outcome.stderr.strip()))


g_exportedScripts = (push_selection, push_kilometres)
