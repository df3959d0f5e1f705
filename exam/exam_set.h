#pragma once
// ExamSet, "Build Comprehensive Screening Exam": chooses the next screening exam and hands the
// choice to ExamTest through the session.

#include "core/screen_context.h"
#include "exam/exam_set_form.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QLabel;
class QListWidget;
class QPushButton;
class QRadioButton;

namespace tessera {

class ExamSet final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ExamSet)

public:
    // Form_Load: fills the lists and sets every control from the session.
    explicit ExamSet(ScreenContext& context);

    const ExamSetForm& form() const { return m_form; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void buildControls();
    void wireControls();
    void showForm(); // puts the form's values into the widgets
    void centreSelectedRows();
    void Command1_Click(int index);

    ScreenContext& m_context;
    ExamSetForm m_form;
    bool m_showing = false;
    std::array<QRadioButton*, 3> Option3{};
    std::array<QRadioButton*, 2> Option1{};
    QCheckBox* Check1 = nullptr;
    std::array<QListWidget*, 2> List1{};
    std::array<QCheckBox*, TopicCount> Check2{};
    QLabel* Label2 = nullptr;
    std::array<QPushButton*, 3> Command1{};
};

} // namespace tessera
