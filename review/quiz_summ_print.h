#pragma once
// The printed review test report card: heads, one line a row, the totals, a page a copy.

#include <QString>
#include <QStringList>

namespace tessera {

class Printer;

struct ReviewCardPrint {
    QString caption;  // the window's caption
    QStringList rows; // List1's lines, in the card's order
    QString totals;   // Label2
    QString fontName; // PrintFontName; empty for the system's fixed-pitch font
};

// Asks the print dialog for a table and prints the copies asked for as one job. Cancel prints
// nothing; a failing printer ends the command without a word. True when it all printed.
bool PrintReviewCard(Printer& printer, const ReviewCardPrint& card);

} // namespace tessera
