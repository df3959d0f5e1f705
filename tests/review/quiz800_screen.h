#pragma once
// Driving Quiz800 as a user does: clicks, keys, wishes, and reading back what it shows.

#include "platform/rich_text_view.h"
#include "review/aladdin.h"
#include "review/quiz800.h"
#include "tests/support/screen_fixture.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include <memory>

namespace tessera {

// Topic 1 holds six items, enough for one wish of each kind; topic 6 holds eight.
inline void FillReviewCourse(SessionState& state) {
    FillSmallCourse(state, {6, 3, 2, 2, 2, 8, 2, 2, 2});
    state.IncludeProgressReport = true;
}

class Quiz800Driver {
public:
    explicit Quiz800Driver(ScreenFixture& fixture)
        : m_fixture(fixture), m_screen(std::make_unique<Quiz800>(fixture.context)) {}

    Quiz800& screen() { return *m_screen; }
    SessionState& state() { return m_fixture.state; }

    QString label(const char* name) const {
        return m_screen->findChild<QLabel*>(QString::fromLatin1(name))->text();
    }
    // The colour value (0xBBGGRR) a label is painted in.
    int labelColour(const char* name) const {
        const QColor c = m_screen->findChild<QLabel*>(QString::fromLatin1(name))
                             ->palette()
                             .color(QPalette::WindowText);
        return c.red() | c.green() << 8 | c.blue() << 16;
    }
    QPushButton* button(int index) const { return m_screen->Command1[static_cast<size_t>(index)]; }
    // Which of the buttons given are enabled.
    QList<bool> enabled(std::initializer_list<int> indexes) const {
        QList<bool> on;
        for (int i : indexes)
            on << button(i)->isEnabled();
        return on;
    }
    QString documentText() const { return m_screen->RichTextBox1->text(); }

    // Index of the right answer of the item on screen, read from the key letter after the
    // item's "\par " and five digits, and of its wrong answers in order.
    int right() const {
        const SessionState& s = m_fixture.state;
        return s.content.ReviewItems[static_cast<size_t>(s.TestItems[s.TestPosition])][10] - 'A';
    }
    int wrong(int k) const { return (right() + 1 + k) % 4; }

    void click(int index) { QTest::mouseClick(button(index), Qt::LeftButton); }
    // A letter typed where the keyboard focus rests after an answer: the text view.
    void type(char letter) { QTest::keyClick(m_screen->RichTextBox1, letter); }
    void answerRight() { click(right()); }
    void next() { click(6); }

    // Opens Aladdin, takes a wish (1 to 3; 0 closes the dialog with Cancel) and returns.
    void wish(int which) {
        QTimer::singleShot(0, m_screen.get(), [this, which] {
            auto* dialog = m_screen->findChild<Aladdin*>();
            QVERIFY(dialog != nullptr);
            m_offered = {};
            for (size_t i = 0; i < 3; ++i)
                m_offered[i] = dialog->Option1[i]->isEnabled();
            if (which == 0) {
                dialog->Command1[1]->click();
                return;
            }
            dialog->Option1[static_cast<size_t>(which - 1)]->setChecked(true);
            dialog->Command1[0]->click();
        });
        click(5);
    }
    // Which wishes the dialog offered when it was last opened.
    const std::array<bool, 3>& offered() const { return m_offered; }

    void close() { m_screen->close(); }

private:
    ScreenFixture& m_fixture;
    std::unique_ptr<Quiz800> m_screen;
    std::array<bool, 3> m_offered{};
};

// Opens the review test screen on a topic, as the topic button does.
inline std::unique_ptr<Quiz800Driver> OpenQuiz(ScreenFixture& fixture, int topic) {
    fixture.state.CurrentTopic = static_cast<int16_t>(topic);
    return std::make_unique<Quiz800Driver>(fixture);
}

} // namespace tessera
