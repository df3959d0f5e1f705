#include "review/quiz_summ_print.h"

#include "platform/card_print.h"

namespace tessera {

namespace {

constexpr int PageLines = 62; // a page holds the rows up to line 61

} // namespace

bool PrintReviewCard(Printer& printer, const ReviewCardPrint& card) {
    PrintedCard paper;
    paper.caption = card.caption;
    paper.heads = {{QStringLiteral("Date") + Blanks(5) + QStringLiteral("Percent") + Blanks(2) +
                        QStringLiteral("Questions") + Blanks(3) + QStringLiteral("Wild") +
                        Blanks(3) + QStringLiteral("Tries") + Blanks(2) +
                        QStringLiteral("Scrambled") + Blanks(2) + QStringLiteral("Time Used"),
                    20},
                   {QStringLiteral("  Test Type  ") + Blanks(6) + QStringLiteral("Taken") +
                    Blanks(4) + QStringLiteral("Correct") + Blanks(4) + QStringLiteral("Asked") +
                    Blanks(3) + QStringLiteral("Guesses") + Blanks(2) + QStringLiteral("Ratio") +
                    Blanks(4) + QStringLiteral("Order") + Blanks(4) + QStringLiteral("(h:m:s)")},
                   {QString(82, QLatin1Char('-'))}};
    for (const QString& row : card.rows)
        paper.rows.push_back({{row, 3}});
    paper.closing = {{QString(65, QLatin1Char('-')), 18}, {card.totals, 18}};
    paper.pageLines = PageLines;
    paper.fontName = card.fontName;
    return PrintCard(printer, paper);
}

} // namespace tessera
