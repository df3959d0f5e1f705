#pragma once
// Scoring, the "Screening Exam Report Card": every stored screening exam, one row an exam,
// with a totals line; sorts, prints, erases rows, shows an exam's results and starts a retake.

#include "platform/services.h"
#include "reports/scoring_rows.h"

#include <QWidget>

#include <array>
#include <vector>

class QGroupBox;
class QLabel;
class QListWidget;
class QPushButton;
class QRadioButton;

namespace tessera {

class Scoring final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Scoring)

public:
    // Form_Load: reads every exam from the progress file, earliest first.
    explicit Scoring(ScreenContext& context);

    // 0 "&Print", 1 "&Erase Exam", 2 "&Done", 3 "&Help", 4 "&Retake Exam", 5 "&View Results".
    void Command1_Click(int index);

    // 0..7 the column heads, 8 the topics, 9 the note, 10 the totals, 11 "Exam Title".
    std::array<QLabel*, 12> Label1{};
    QListWidget* List1 = nullptr;
    QGroupBox* Frame1 = nullptr;
    QGroupBox* Frame2 = nullptr;
    std::array<QRadioButton*, 5> Option1{};
    std::array<QRadioButton*, 3> Option2{};
    std::array<QPushButton*, 6> Command1{};

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    // scoring_layout.cpp
    void buildControls();
    QLayout* buildCommands();
    void alignHeads();
    QWidget* m_heads = nullptr; // holds the column heads, placed over the columns

    void FillExamList();
    void Option1_Click(int index);
    void Option2_Click(int index);
    void List1_Click(int row);
    void selectRow(int row);
    void EraseExam();
    void ViewResults();
    void RetakeExam();
    void printCard();
    void SaveChanges();
    void setNavigationEnabled(bool enabled);
    const ScoringRow* selectedRow() const;
    int chosenRetake() const;

    ScreenContext& m_context;
    std::vector<ScoringRow> m_rows;
    bool ReportChanged = false;
};

} // namespace tessera
