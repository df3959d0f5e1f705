#pragma once
// A report card on paper: the caption, heads, one group of lines a row that a page break never
// splits, and closing lines; a page that goes on carries the caption with " (cont.)".

#include <QString>

#include <vector>

namespace tessera {

class Printer;

// A run of blanks, for lines laid out in columns of the fixed-pitch font.
inline QString Blanks(int count) {
    return QString(count, QLatin1Char(' '));
}

struct CardLine {
    QString text;
    int column = 1; // from 1, in the font's average characters
};

struct PrintedCard {
    QString caption;
    std::vector<CardLine> heads;             // after an empty line, the caption, an empty line
    std::vector<std::vector<CardLine>> rows; // in the card's order
    std::vector<CardLine> closing;           // after the last row: the rule and the totals
    int pageLines = 61;                      // a new page once the line count reaches it
    QString fontName; // PrintFontName; empty for the system's fixed-pitch font
};

// Asks the print dialog for a table and prints the copies asked for as one job, each with its
// own heads, rows and closing lines and a new page at its end. Cancel prints nothing; a failing
// printer ends the command without a word. True when every copy went to the printer.
bool PrintCard(Printer& printer, const PrintedCard& card);

} // namespace tessera
