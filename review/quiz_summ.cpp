#include "review/quiz_summ.h"

#include "core/progress_file.h"
#include "platform/clock.h"
#include "platform/windows1252.h"
#include "review/quiz_summ_print.h"

#include <QLabel>
#include <QListWidget>

namespace tessera {

int QuizSumm::rowCount() const {
    return static_cast<int>(m_rows.size());
}

QString QuizSumm::rowText(int row) const {
    return fromWindows1252(CardRowText(at(row)));
}

QString QuizSumm::totalsText() const {
    return fromWindows1252(CardTotalsText(m_rows));
}

QString QuizSumm::topicText(int row) const {
    if (row == 0)
        return QStringLiteral("Topic Number:");
    const int t = at(row).record.Topic;
    const bool known = t >= 1 && t <= TopicCount;
    return fromWindows1252(
        RelatedTopicText(t, known ? m_context.state.catalogue.TopicTitles[t] : ""));
}

int QuizSumm::rowKey(int row) const {
    return at(row).key;
}

void QuizSumm::sortRows(int sort) {
    SortCardRows(m_rows, static_cast<CardSort>(sort));
}

int QuizSumm::eraseRow(int row) {
    return EraseCardRow(m_rows, row);
}

std::array<bool, 3> QuizSumm::offeredChoices(int row) const {
    const SessionState& s = m_context.state;
    const int t = at(row).record.Topic;
    const bool known = t >= 1 && t <= TopicCount;
    return OfferedRetakes(at(row), known ? s.TakeCounts[t] : 0,
                          known ? s.content.ItemCounts[t][1] : 0);
}

SaveStatus QuizSumm::rewriteRows() {
    return RewriteProgressFile(m_context.state, KeptRecords(m_rows),
                               m_context.services.clock.now());
}

void QuizSumm::buildRetake(int row, int choice) {
    BuildCardRetake(m_context.state, at(row), static_cast<RetakeChoice>(choice));
}

bool QuizSumm::printRows() {
    ReviewCardPrint card;
    card.caption = windowTitle();
    for (int i = 0; i < List1->count(); ++i)
        card.rows << List1->item(i)->text();
    card.totals = Label2->text();
    card.fontName = fromWindows1252(m_context.state.PrintFontName);
    return PrintReviewCard(m_context.services.printer, card);
}

} // namespace tessera
