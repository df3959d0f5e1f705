#pragma once
// Quiz800, the review test screen: one item at a time, answered until the right answer is found,
// with its explanation, the tallies, the clocks, the gauge and the wishes.

#include "core/rich_text_documents.h"
#include "platform/services.h"

#include <QWidget>

#include <array>
#include <string>

class QFrame;
class QGroupBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QTimer;

namespace tessera {

struct SaveResult;
class ReviewGauge;
class RichTextView;

class Quiz800 final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Quiz800)

public:
    // Form_Load: builds a new All Items test when TestPosition is 0, otherwise shows the test
    // where it stands.
    explicit Quiz800(ScreenContext& context);
    ~Quiz800() override;

    void ShowItem(int position);
    void ProcessAnswer(int& letter, int button);
    void KeyAnswer(int keyCode);
    void RevealAnswer();
    void UpdatePerformance();
    void Command1_Click(int index);
    // Writes the two clocks; runs every 200 milliseconds while an item is open.
    void Timer1_Timer();

    // Indices 0..3 answers, 5 Aladdin, 6 Next/Done, 7 Break/Cancel, 8 Help, 9 Notebook,
    // 10 Calculator, 11 Previous, 12 View Picture; 4 is not used.
    std::array<QPushButton*, 13> Command1{};
    RichTextView* RichTextBox1 = nullptr;
    QTimer* Timer1 = nullptr;
    // The document on screen, normal and large.
    const RtfVersions& itemRtf() const { return ItemRtf; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // quiz800_layout.cpp
    void buildControls();
    QPushButton* makeCommand(int index, const QString& caption, const QString& accessibleName);

    // quiz800_session.cpp: the test as a whole
    void BuildAllItemsTest();
    void NextItem();
    void PreviousItem();
    void EndTest();
    void Form_Unload();
    SaveResult SaveTest();
    void OpenAladdin();
    void CoinToss();
    void openBeside(ScreenName name);

    void Form_KeyPress(int keyCode);
    void showPicture(int item);
    void showDocument();
    void setFeedback(const std::string& text, int colour);
    void appendFeedback(const std::string& text);
    void updateGauge();
    int enabledAnswers() const;
    bool isLastPosition() const;
    DateValue now() const;

    ScreenContext& m_context;
    SessionState& m_state;

    // Fields of the screen; they go with it.
    int RightAnswer = 0;
    int GivenAnswer = 0;
    std::string QuestionRtf;
    std::string ExplanationRtf;
    RtfVersions ItemRtf;
    DateValue ItemStart = 0;
    bool TestFinished = false;
    bool m_unloaded = false;

    QLabel* Label2 = nullptr;
    QGroupBox* Frame1 = nullptr;
    QLabel* Label3 = nullptr;
    QLabel* Label4 = nullptr;
    QLabel* Label5 = nullptr;
    QLabel* Label6 = nullptr;
    QLabel* Label7 = nullptr;
    QLabel* Label8 = nullptr;
    QLabel* Label11 = nullptr;
    QProgressBar* ProgressBar1 = nullptr;
    QFrame* Shape4 = nullptr;
    ReviewGauge* m_gauge = nullptr;
    std::string m_feedback; // Label2's caption as the system writes it, with CR LF
};

} // namespace tessera
