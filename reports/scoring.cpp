#include "reports/scoring.h"

#include "core/progress_file.h"
#include "platform/card_print.h"
#include "platform/clock.h"
#include "platform/windows1252.h"
#include "reports/scoring_print.h"

namespace tessera {

void Scoring::Command1_Click(int index) {
    if (index == 5)
        ViewResults();
    else
        ReportCard::Command1_Click(index);
}

void Scoring::ViewResults() {
    const int row = selectedRow();
    if (row == 0)
        return;
    SaveChanges();
    LoadStoredExam(m_context.state, at(row));
    ScreenHost& screens = m_context.screens;
    screens.unload(ScreenName::Scoring);
    screens.unload(ScreenName::Results);
    screens.show(ScreenName::Results);
}

int Scoring::rowCount() const {
    return static_cast<int>(m_rows.size());
}

QString Scoring::rowText(int row) const {
    return fromWindows1252(ScoringRowText(at(row)));
}

QString Scoring::totalsText() const {
    return fromWindows1252(ScoringTotalsText(m_rows));
}

QString Scoring::topicText(int row) const {
    return fromWindows1252(TopicsCoveredText(row != 0 ? &at(row) : nullptr));
}

int Scoring::rowKey(int row) const {
    return at(row).loaded;
}

void Scoring::sortRows(int sort) {
    SortScoringRows(m_rows, static_cast<ScoringSort>(sort));
}

int Scoring::eraseRow(int row) {
    return EraseScoringRow(m_rows, row);
}

std::array<bool, 3> Scoring::offeredChoices(int row) const {
    const SessionState& s = m_context.state;
    const int kind = at(row).record.Kind;
    const int exam = kind - 9;
    return OfferedExamRetakes(at(row), s.TakeCounts[kind],
                              exam < 3 ? s.content.ItemCounts[exam][2] : 0);
}

SaveStatus Scoring::rewriteRows() {
    return RewriteProgressFile(m_context.state, KeptExamRecords(m_rows),
                               m_context.services.clock.now());
}

void Scoring::buildRetake(int row, int choice) {
    BuildExamRetake(m_context.state, at(row), static_cast<ExamRetake>(choice));
}

bool Scoring::printRows() {
    return PrintCard(m_context.services.printer,
                     ScoringPaper(m_rows, m_context.state.PrintFontName));
}

} // namespace tessera
