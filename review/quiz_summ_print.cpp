#include "review/quiz_summ_print.h"

#include "platform/printer.h"

namespace tessera {

namespace {

constexpr int PageLines = 62; // a page holds the rows up to line 61

QString Blanks(int count) {
    return QString(count, QLatin1Char(' '));
}

void PrintCopy(Printer& printer, const ReviewCardPrint& card) {
    printer.printLine(QString());
    printer.printLine(card.caption);
    printer.printLine(QString());
    printer.printLine(QStringLiteral("Date") + Blanks(5) + QStringLiteral("Percent") + Blanks(2) +
                          QStringLiteral("Questions") + Blanks(3) + QStringLiteral("Wild") +
                          Blanks(3) + QStringLiteral("Tries") + Blanks(2) +
                          QStringLiteral("Scrambled") + Blanks(2) + QStringLiteral("Time Used"),
                      20);
    printer.printLine(QStringLiteral("  Test Type  ") + Blanks(6) + QStringLiteral("Taken") +
                      Blanks(4) + QStringLiteral("Correct") + Blanks(4) + QStringLiteral("Asked") +
                      Blanks(3) + QStringLiteral("Guesses") + Blanks(2) + QStringLiteral("Ratio") +
                      Blanks(4) + QStringLiteral("Order") + Blanks(4) + QStringLiteral("(h:m:s)"));
    printer.printLine(QString(82, QLatin1Char('-')));
    int lineCount = 7;
    for (const QString& row : card.rows) {
        printer.printLine(row, 3);
        ++lineCount;
        if (lineCount >= PageLines) {
            printer.newPage();
            printer.printLine(QString());
            printer.printLine(card.caption + QStringLiteral(" (cont.)"));
            printer.printLine(QString());
            lineCount = 3;
        }
    }
    printer.printLine(QString(65, QLatin1Char('-')), 18);
    printer.printLine(card.totals, 18);
    printer.newPage();
}

} // namespace

void PrintReviewCard(Printer& printer, const ReviewCardPrint& card) {
    const auto choice = printer.showPrintDialog(PrintDialogKind::Table);
    if (!choice)
        return;
    if (!card.fontName.isEmpty())
        printer.setFontName(card.fontName);
    printer.setFontSize(10);
    for (int copy = 0; copy < choice->copies && printer.ok(); ++copy)
        PrintCopy(printer, card);
    printer.endDoc();
}

} // namespace tessera
