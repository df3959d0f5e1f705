#pragma once
// Preferences, the review test options dialog: four options and the passing grade, saved to
// the progress header.

#include "core/screen_context.h"

#include <QDialog>
#include <QString>

#include <array>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace tessera {

struct ReviewOptions {
    bool ScrambleQuestions = false;
    bool SoundOn = false;
    bool TimerActive = false;
    bool IncludeProgressReport = false;
    int PassingGrade = 0;
};

ReviewOptions CurrentReviewOptions(const SessionState& state);
void ApplyReviewOptions(SessionState& state, const ReviewOptions& options);

// What the grade box must read instead of text above 100 or below 0; empty when it may stay.
QString GradeTextLimit(const QString& text);
// Leading blanks cut, the numeric value rounded to a whole number.
int GradeFromText(const QString& text);

class Preferences final : public QDialog {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Preferences)

public:
    explicit Preferences(ScreenContext& context, QWidget* parent = nullptr);

    // What the controls hold now.
    ReviewOptions chosenOptions() const;
    // Writes the options of the session to the progress header; nothing is pending after it.
    void SavePreferences();
    bool changesPending() const { return m_changesPending; }

    void Command1_Click();
    void Command2_Click();
    void Command3_Click();

    QCheckBox* Check1 = nullptr;
    QCheckBox* Check2 = nullptr;
    QCheckBox* Check3 = nullptr;
    QCheckBox* Check5 = nullptr;
    QLabel* Picture1 = nullptr;
    QLabel* Picture2 = nullptr;
    QLabel* Picture3 = nullptr;
    QLabel* Picture5 = nullptr;
    QLineEdit* Text1 = nullptr;
    std::array<QLabel*, 2> Label2{};
    QPushButton* Command1 = nullptr;
    QPushButton* Command2 = nullptr;
    QPushButton* Command3 = nullptr;

protected:
    void closeEvent(QCloseEvent* event) override;
    void reject() override;

private:
    void buildControls();
    void showGrade(bool visible);

    ScreenContext& m_context;
    bool m_changesPending = false;
};

} // namespace tessera
