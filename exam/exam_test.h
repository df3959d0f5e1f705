#pragma once
// ExamTest: the screening exam on screen. It shows the ExamSession's values and forwards the
// user's acts, keys and timer ticks to it; closing runs the end of the exam.

#include "core/rich_text_documents.h"
#include "core/screen_context.h"
#include "exam/exam_session.h"

#include <QWidget>

#include <array>
#include <string>

class QFrame;
class QGroupBox;
class QLabel;
class QListWidget;
class QProgressBar;
class QPushButton;
class QTimer;

namespace tessera {

class RichTextView;

class ExamTest final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ExamTest)

public:
    // Form_Load: a new exam, a retake, or the suspended exam resumed.
    explicit ExamTest(ScreenContext& context);

    const ExamSession& session() const { return m_session; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildControls();
    QWidget* buildSidePanel();
    void wireControls();
    void showSession();
    void journal(); // puts the session's values into the widgets
    void showLists();
    void showItemText();
    void showPicture();
    void applyFocus();
    void Command1_Click(int index);
    void Timer1_Timer();
    void Timer2_Timer();
    void Form_Unload();

    ScreenContext& m_context;
    ExamSession m_session;
    bool m_showing = false;
    bool m_unloaded = false;
    int m_picturesShown = 0;
    std::string m_shownRtf; // ItemRtf as the session built it
    RtfVersions m_item;     // ItemRtf and ItemRtfScaled
    std::array<QPushButton*, ExamCommandCount> Command1{};
    std::array<QListWidget*, 2> List1{};
    QGroupBox* Frame1 = nullptr;
    std::array<QLabel*, 2> Label1{};
    RichTextView* RichTextBox1 = nullptr;
    QProgressBar* ProgressBar1 = nullptr;
    QFrame* Shape1 = nullptr;
    QTimer* Timer1 = nullptr;
    QTimer* Timer2 = nullptr;
};

} // namespace tessera
