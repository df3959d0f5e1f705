#pragma once
// QuizSumm, the "Review Test Scoring Report Card": every stored review test, one row a test,
// with a totals line; sorts, prints, erases rows and starts a retake of the selected test.

#include "platform/services.h"
#include "review/quiz_summ_rows.h"

#include <QWidget>

#include <array>
#include <vector>

class QGroupBox;
class QLabel;
class QListWidget;
class QPushButton;
class QRadioButton;

namespace tessera {

class QuizSumm final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QuizSumm)

public:
    // Form_Load: reads every review test from the progress file.
    explicit QuizSumm(ScreenContext& context);

    // 0 "&Print", 1 "&Erase Test", 2 "&Done", 3 "&Help", 4 "&Retake".
    void Command1_Click(int index);

    std::array<QLabel*, 8> Label1{};
    QListWidget* List1 = nullptr;
    QLabel* Label2 = nullptr;
    QLabel* Label3 = nullptr;
    QGroupBox* Frame1 = nullptr;
    QGroupBox* Frame2 = nullptr;
    std::array<QRadioButton*, 5> Option1{};
    std::array<QRadioButton*, 3> Option2{};
    std::array<QPushButton*, 5> Command1{};

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    // quiz_summ_layout.cpp
    void buildControls();
    QWidget* m_heads = nullptr; // holds Label1, placed over the columns
    void alignHeads();

    void FillList();
    void Option1_Click(int index);
    void Option2_Click(int index);
    void List1_Click(int row);
    void selectRow(int row);
    void EraseTest();
    void Retake();
    void printCard();
    void OfferToSave();
    int selectedChoice() const;
    bool retakePossible() const;

    ScreenContext& m_context;
    std::vector<CardRow> m_rows;
    bool CardChanged = false;
};

} // namespace tessera
