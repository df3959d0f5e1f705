#include "platform/card_print.h"

#include "platform/printer.h"

namespace tessera {

namespace {

void PrintLines(Printer& printer, const std::vector<CardLine>& lines) {
    for (const CardLine& line : lines)
        printer.printLine(line.text, line.column);
}

void PrintCopy(Printer& printer, const PrintedCard& card) {
    const auto opening = [&printer](const QString& title) {
        printer.printLine(QString());
        printer.printLine(title);
        printer.printLine(QString());
    };
    opening(card.caption);
    PrintLines(printer, card.heads);
    // The number of the line that the next row takes.
    int pageLine = 4 + static_cast<int>(card.heads.size());
    for (const std::vector<CardLine>& row : card.rows) {
        PrintLines(printer, row);
        pageLine += static_cast<int>(row.size());
        if (pageLine >= card.pageLines) {
            printer.newPage();
            opening(card.caption + QStringLiteral(" (cont.)"));
            pageLine = 3;
        }
    }
    PrintLines(printer, card.closing);
    printer.newPage();
}

} // namespace

bool PrintCard(Printer& printer, const PrintedCard& card) {
    const bool asked = PrintTableJob(
        printer,
        [&] {
            // An empty name is the system's fixed-pitch font, so that the columns line up
            // whatever font an earlier print left on the printer.
            printer.setFontName(card.fontName);
            printer.setFontSize(10);
            printer.setFontBold(false);
        },
        [&] { PrintCopy(printer, card); });
    return asked && printer.ok();
}

} // namespace tessera
