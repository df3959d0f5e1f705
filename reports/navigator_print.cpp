#include "reports/navigator_print.h"

#include "platform/printer.h"

namespace tessera {

namespace {

constexpr double TableSize = 11;
constexpr double SeparatorSize = 6;
constexpr int Margin = 6;
constexpr QChar LongDash(0x2014); // code 151 of the Windows Latin code page

// Where each column's cell text starts on the printed line.
constexpr std::array<int, MonitorColumnCount> CellColumns = {6, 45, 61, 72, 81, 93};

QString Rule() {
    return QString(48, LongDash);
}

void PrintCopy(Printer& printer, const MonitorPrint& table) {
    printer.printLine(QString());
    printer.printLine(table.userName, Margin);
    printer.printLine(table.date, Margin);
    printer.printLine(Rule(), Margin);
    printer.printColumns({{45, QStringLiteral("Initial Date")},
                          {58, QStringLiteral("First Drill")},
                          {71, QStringLiteral("Full")},
                          {80, QStringLiteral("Highest")},
                          {94, QStringLiteral("Date of")}});
    printer.printColumns({{6, QStringLiteral(" Topic Title")},
                          {42, QStringLiteral(" of Topic Test")},
                          {61, QStringLiteral("Score")},
                          {70, QStringLiteral("Takes")},
                          {81, QStringLiteral("Score")},
                          {91, QStringLiteral("Highest Score")}});
    printer.printLine(Rule(), Margin);
    for (std::size_t r = 0; r < table.cells.size(); ++r) {
        QList<ColumnText> line;
        for (std::size_t c = 0; c < CellColumns.size(); ++c)
            line.append({CellColumns[c], table.cells[r][c]});
        printer.printColumns(line);
        // A thin rule between two rows, in a small plain font.
        if (r + 1 < table.cells.size()) {
            printer.setFontBold(false);
            printer.setFontSize(SeparatorSize);
            printer.printLine(QString(88, LongDash), 11);
            printer.setFontSize(TableSize);
            printer.setFontBold(true);
        }
    }
    printer.printLine(Rule(), Margin);
    printer.newPage();
}

} // namespace

bool PrintMonitor(Printer& printer, const MonitorPrint& table) {
    return PrintTableJob(
        printer,
        [&] {
            printer.setFontName(QStringLiteral("Arial"));
            printer.setFontSize(TableSize);
            printer.setFontBold(true);
        },
        [&] { PrintCopy(printer, table); });
}

} // namespace tessera
