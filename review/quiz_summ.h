#pragma once
// QuizSumm, the "Review Test Scoring Report Card": every stored review test, one row a test,
// with a totals line; sorts, prints, erases rows and starts a retake of the selected test.

#include "core/report_card.h"
#include "review/quiz_summ_rows.h"

#include <array>
#include <vector>

namespace tessera {

class QuizSumm final : public ReportCard {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QuizSumm)

public:
    // Form_Load: reads every review test from the progress file.
    explicit QuizSumm(ScreenContext& context);

    // Command1: 0 "&Print", 1 "&Erase Test", 2 "&Done", 3 "&Help", 4 "&Retake".
    std::array<QLabel*, 8> Label1{}; // the column heads
    QLabel* Label2 = nullptr;        // the totals
    QLabel* Label3 = nullptr;        // the selected test's topic

private:
    struct Labels {
        std::array<QLabel*, 8> heads;
        QLabel* totals;
        QLabel* topic;
        QLabel* note;
    };
    static Labels MakeLabels();
    QuizSumm(ScreenContext& context, Labels labels);

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
    const CardRow& at(int row) const { return m_rows[static_cast<size_t>(row - 1)]; }

    std::vector<CardRow> m_rows;
};

} // namespace tessera
