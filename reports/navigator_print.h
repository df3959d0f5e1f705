#pragma once
// The printed monitor spreadsheet: one page a copy with the candidate's name, the date, the
// two head lines and the twelve rows of the table between thin rules.

#include "reports/navigator_table.h"

#include <QString>

#include <array>

namespace tessera {

class Printer;

struct MonitorPrint {
    QString userName;
    QString date; // today, in the form "dddd, mmmm d, yyyy"
    std::array<std::array<QString, MonitorColumnCount>, MonitorRowCount> cells; // rows 1 to 12
};

// Asks the print dialog for a table and prints the copies asked for as one job. False when the
// dialog was cancelled and nothing printed; a failing printer ends the job without a word.
bool PrintMonitor(Printer& printer, const MonitorPrint& table);

} // namespace tessera
