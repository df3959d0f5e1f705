#pragma once
// The printed exam: a two-column table of every item with the right answer and the
// candidate's, a heading on each page, the scoring summary, a copy after another in one job.

#include "core/date_value.h"

#include <array>
#include <string>
#include <vector>

namespace tessera {

class Printer;
struct SessionState;

inline constexpr int PrintedRowsPerPage = 55;

// One position of the exam in its current order.
struct PrintedItem {
    int key = 0;    // the right choice, 1 to 4
    int answer = 0; // the choice given; 0 when not answered
    bool unsure = false;
};

struct ResultsPrint {
    std::string title;    // the exam's title on page 1
    std::string examName; // before "  (cont.)" on later pages
    std::string userName;
    std::string crLf;
    DateValue now = 0;
    std::vector<PrintedItem> items;
    std::array<std::string, 6> summary; // the captions of the scoring summary
    std::string fontName;               // empty keeps the printer's fixed-pitch font
};

// The exam on screen as it prints, in the order of the session, which "&Sort" may have changed.
ResultsPrint ResultsPrintOf(const SessionState& state, const std::array<std::string, 6>& summary,
                            DateValue now);

// Table rows on pages 1, 2 and 3 of a copy: the last page balances what is left over its two
// columns.
std::array<int, 3> RowsOnPage(int itemCount);

// One table row: item k on the left and, when right is not 0, item right beside it.
std::string PrintedRow(const ResultsPrint& exam, int k, int right);

// Asks the print dialog for a table and prints the copies asked for as one job. False when the
// dialog was cancelled and nothing printed; a failing printer ends the job without a word.
bool PrintResults(Printer& printer, const ResultsPrint& exam);

} // namespace tessera
