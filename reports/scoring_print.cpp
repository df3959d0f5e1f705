#include "reports/scoring_print.h"

#include "platform/windows1252.h"

namespace tessera {

namespace {

constexpr int PageLines = 61;
constexpr int CustomExamKind = 12;
constexpr int TopicsColumn = 11;
constexpr int TotalsColumn = 14;

QString Rule() {
    return QString(89, QLatin1Char('-'));
}

} // namespace

PrintedCard ScoringPaper(const std::vector<ScoringRow>& rows, const std::string& fontName) {
    PrintedCard paper;
    paper.caption = QString::fromLatin1(ScoringCaption);
    paper.heads = {{Blanks(15) + QStringLiteral("Date") + Blanks(4) + QStringLiteral("Percent") +
                    QStringLiteral(" Questions") + Blanks(2) + QStringLiteral("Number") +
                    Blanks(3) + QStringLiteral("Unsure") + Blanks(2) + QStringLiteral("Scrambled") +
                    Blanks(2) + QStringLiteral("Allotted") + Blanks(2) +
                    QStringLiteral("Time Used")},
                   {QStringLiteral("Exam Title") + Blanks(5) + QStringLiteral("Taken") + Blanks(3) +
                    QStringLiteral("Correct") + Blanks(3) + QStringLiteral("Asked") + Blanks(3) +
                    QStringLiteral("Answered") + Blanks(2) + QStringLiteral("Answers") + Blanks(3) +
                    QStringLiteral("Order") + Blanks(3) + QStringLiteral("Time (min.)") +
                    Blanks(2) + QStringLiteral("(h:m:s)")},
                   {Rule()}};
    for (const ScoringRow& row : rows) {
        QString text = fromWindows1252(ScoringRowText(row));
        while (text.startsWith(QLatin1Char(' ')))
            text.remove(0, 1);
        std::vector<CardLine> lines = {{text}};
        if (row.record.Kind == CustomExamKind) {
            lines.push_back({fromWindows1252(TopicsCoveredText(&row)), TopicsColumn});
            lines.push_back({});
        }
        paper.rows.push_back(std::move(lines));
    }
    paper.closing = {{Rule()}, {fromWindows1252(ScoringTotalsText(rows)), TotalsColumn}};
    paper.pageLines = PageLines;
    paper.fontName = fromWindows1252(fontName);
    return paper;
}

} // namespace tessera
