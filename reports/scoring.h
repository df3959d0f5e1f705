#pragma once
// Scoring, the "Screening Exam Report Card": every stored screening exam, one row an exam,
// with a totals line; sorts, prints, erases rows, shows an exam's results and starts a retake.

#include "core/report_card.h"
#include "reports/scoring_rows.h"

#include <array>
#include <vector>

namespace tessera {

class Scoring final : public ReportCard {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Scoring)

public:
    // Form_Load: reads every exam from the progress file, earliest first.
    explicit Scoring(ScreenContext& context);

    // 0 "&Print", 1 "&Erase Exam", 2 "&Done", 3 "&Help", 4 "&Retake Exam", 5 "&View Results".
    void Command1_Click(int index) override;

    // 0..7 the column heads, 8 the topics, 9 the note, 10 the totals, 11 "Exam Title".
    std::array<QLabel*, 12> Label1{};

private:
    Scoring(ScreenContext& context, std::array<QLabel*, 12> labels);
    void ViewResults();

    int rowCount() const override;
    QString rowText(int row) const override;
    QString totalsText() const override;
    QString topicText(int row) const override;
    int rowKey(int row) const override;
    void sortRows(int sort) override;
    int eraseRow(int row) override;
    std::array<bool, 3> offeredChoices(int row) const override;
    SaveStatus rewriteRows() override;
    void buildRetake(int row, int choice) override;
    bool printRows() override;
    const ScoringRow& at(int row) const { return m_rows[static_cast<size_t>(row - 1)]; }

    std::vector<ScoringRow> m_rows;
};

} // namespace tessera
