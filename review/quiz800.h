#pragma once
// Quiz800, the review test screen: one item at a time, answered until the right answer is found,
// with its explanation, the tallies, the clocks, the gauge and the wishes.

#include "core/rich_text_documents.h"
#include "core/screen_context.h"
#include "review/review_session.h"

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
    void Command1_Click(int index);
    // Writes the two clocks; runs every 200 milliseconds while an item is open.
    void Timer1_Timer();

    // By ReviewCommand.
    std::array<QPushButton*, ReviewCommand::Count> Command1{};
    RichTextView* RichTextBox1 = nullptr;
    QTimer* Timer1 = nullptr;
    // The document on screen, normal and large.
    const RtfVersions& itemRtf() const { return m_session.document(); }

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // quiz800_layout.cpp
    void buildControls();
    QPushButton* makeCommand(int index, const QString& caption, const QString& accessibleName);

    // quiz800_session.cpp: the session's state on the widgets, and the screens beside
    void showSession();
    void showPicture();
    void showDocument();
    void Form_Unload();
    void OpenAladdin();

    ScreenContext& m_context;
    SessionState& m_state;
    ReviewSession m_session;
    int m_shownDocument = -1;
    int m_shownItem = -1;

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
};

} // namespace tessera
