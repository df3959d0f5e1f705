#include "exam/exam_session.h"

#include "core/session_state.h"
#include "exam/draw_exam.h"
#include "exam/exam_format.h"
#include "exam/exam_items.h"
#include "platform/clock.h"
#include "platform/dialogs.h"

#include <algorithm>
#include <cmath>

namespace tessera {

namespace {
constexpr int ChoiceCount = 4; // every item has four choices, "ABCD"
constexpr int16_t True = -1;
const std::string AnswerPrefix = "Your Answer:  ";
const std::string UnsureNote = "  (Unsure of Answer)";
} // namespace

int ExamList::selectedPosition() const {
    return selected >= 0 && selected < rows() ? positions[selected] : 0;
}

namespace {
void AddRow(ExamList& list, int position) {
    const auto at = std::lower_bound(list.positions.begin(), list.positions.end(), position);
    const int row = static_cast<int>(at - list.positions.begin());
    list.positions.insert(at, position);
    if (list.selected >= row) {
        ++list.selected;
    }
}

void RemoveRow(ExamList& list, int row) {
    list.positions.erase(list.positions.begin() + row);
    if (list.selected == row) {
        list.selected = -1;
    } else if (list.selected > row) {
        --list.selected;
    }
}
} // namespace

std::string RemainingRowText(int position) {
    return CountColumns(position);
}

std::string AnsweredRowText(int position, int answer, bool unsure) {
    return CountColumns(position) + "  " + ChoiceLetter(answer) + (unsure ? "?" : "");
}

std::string CountsCaption(int answered, int remaining) {
    return NumberText(answered) + " Answered" + std::string(10, ' ') + NumberText(remaining) +
           " Remaining";
}

ExamSession::ExamSession(SessionState& state, const Clock& clock, Random& random)
    : m_state(state), m_clock(clock), m_random(random) {
    m_enabled.fill(true);
    m_enabled[PictureCommand] = false;
    m_lists[AnsweredList].enabled = false;
}

bool ExamSession::structured() const {
    return m_state.ExamStructured != 0;
}

void ExamSession::open() {
    auto& s = m_state;
    if (s.ExamPosition == 0) {
        if (s.ExamType < 4) {
            DrawExam(s, m_random, m_clock);
        } else {
            // A retake keeps the positions the report card set; only the answers go.
            s.ExamAnswers.fill(0);
            s.ExamUnsure.fill(0);
            s.ExamKey.fill(0);
            s.ExamAnswerCounts.fill(0);
            s.ExamAnswered.fill(0);
        }
        for (int p = 1; p <= s.ExamItemCount; ++p) {
            m_lists[RemainingList].positions.push_back(p);
        }
        s.ExamPosition = 1;
        s.ExamElapsed = 0;
    } else {
        for (int p = 1; p <= s.ExamItemCount; ++p) {
            s.ExamKey[p] = static_cast<int16_t>(ExamKeyOf(ExamItemText(s, p)));
            if (s.ExamAnswers[p] != 0) {
                m_lists[AnsweredList].positions.push_back(p);
                s.ExamAnswered[p] = True;
            } else {
                m_lists[RemainingList].positions.push_back(p);
            }
        }
        m_lists[AnsweredList].enabled = true;
    }
    if (structured()) {
        m_enabled[NextCommand] = false;
    }
    if (m_lists[RemainingList].rows() > 0) {
        selectRow(RemainingList, 0);
    } else {
        startBlinking();
        selectRow(AnsweredList, s.ExamPosition - 1);
    }
    m_timeExpired = false;
    m_clockStart = m_clock.now();
}

void ExamSession::selectRow(int index, int row) {
    ExamList& list = m_lists[index];
    if (m_closingDown || row < 0 || row >= list.rows()) {
        return;
    }
    list.selected = row;
    int position = 0;
    if (!structured()) {
        m_activeList = index;
        m_greenList = index;
        position = list.positions[row];
    } else {
        m_activeList = RemainingList;
        m_greenList = RemainingList;
        m_confirm = true;
        m_enabled[PreviousCommand] = false;
        m_lists[AnsweredList].enabled = false;
        m_lists[RemainingList].enabled = false;
        position = m_lists[RemainingList].selectedPosition();
    }
    if (position == 0) {
        return;
    }
    m_state.ExamPosition = static_cast<int16_t>(position);
    showExamItem(position);
}

void ExamSession::showExamItem(int p) {
    auto& s = m_state;
    ++m_itemShowings;
    m_windowCaption = s.catalogue.ExamNames[s.ExamKind] + ", Item" + NumberText(p) + " of" +
                      NumberText(s.ExamItemCount);
    m_pictureEntry = ExamItemPicture(s, p);
    s.ExamKey[p] = static_cast<int16_t>(ExamKeyOf(ExamItemText(s, p)));
    m_itemRtf = ExamQuestionRtf(s, p);
    for (int i = 0; i < ChoiceCount; ++i) {
        m_enabled[i] = true;
    }
    if (s.ExamAnswers[p] != 0) {
        setAnswerLabel(p);
        m_enabled[s.ExamAnswers[p] - 1] = false;
    } else {
        m_answerLabel = AnswerPrefix;
    }
    m_enabled[PictureCommand] = m_pictureEntry != 0;
    const ExamList& active = m_lists[m_activeList];
    const int r = active.selected;
    const int n = active.rows();
    if (r == 0) {
        m_enabled[PreviousCommand] = false;
        m_enabled[NextCommand] = !structured();
    } else if (r == n - 1) {
        m_enabled[PreviousCommand] = true;
        m_enabled[NextCommand] = false;
    } else {
        m_enabled[PreviousCommand] = true;
        m_enabled[NextCommand] = !structured();
    }
    m_progress = static_cast<int>(100.0 * m_lists[AnsweredList].rows() / s.ExamItemCount);
}

std::string ExamSession::breakCaption() const {
    return m_lists[AnsweredList].rows() == 0 ? "&Cancel" : "&Break";
}

std::string ExamSession::countsCaption() const {
    return CountsCaption(m_lists[AnsweredList].rows(), m_lists[RemainingList].rows());
}

std::string ExamSession::rowText(int index, int row) const {
    const int p = m_lists[index].positions[row];
    return index == RemainingList
               ? RemainingRowText(p)
               : AnsweredRowText(p, m_state.ExamAnswers[p], m_state.ExamUnsure[p] != 0);
}

std::string ExamSession::answerText(int p) const {
    const bool unsure = m_state.ExamUnsure[p] != 0;
    return AnswerPrefix + ChoiceLetter(m_state.ExamAnswers[p]) + (unsure ? "?" : "");
}

void ExamSession::setAnswerLabel(int p) {
    m_answerLabel = answerText(p) + (m_state.ExamUnsure[p] != 0 ? UnsureNote : "");
}

void ExamSession::replaceAnsweredRow() {
    // The row is taken out and added anew with its new letter and mark; sorted by position,
    // it comes back at the same row, and selecting it shows the item again.
    const int row = m_lists[AnsweredList].selected;
    selectRow(AnsweredList, row);
}

void ExamSession::pressAnswer(int choice) {
    if (choice < 0 || choice >= ChoiceCount || m_closingDown) {
        return;
    }
    auto& s = m_state;
    const int p = s.ExamPosition;
    for (int i = 0; i < ChoiceCount; ++i) {
        m_enabled[i] = i != choice;
    }
    s.ExamAnswers[p] = static_cast<int16_t>(choice + 1);
    ++s.ExamAnswerCounts[p];
    // A third press marks the item unsure by itself.
    if (s.ExamAnswerCounts[p] >= 3 && s.ExamUnsure[p] == 0) {
        s.ExamUnsure[p] = UnsureMark;
    }
    if (m_activeList == AnsweredList) {
        replaceAnsweredRow();
    }
    setAnswerLabel(p);
    if (structured()) {
        m_enabled[PreviousCommand] = false;
        m_enabled[NextCommand] = true;
        m_focus = ExamFocus::Next;
    } else {
        const ExamList& active = m_lists[m_activeList];
        const bool last = active.selected == active.rows() - 1;
        m_focus = active.rows() >= 2 && last ? ExamFocus::Previous : ExamFocus::Next;
    }
}

int ExamSession::commitItem() {
    auto& s = m_state;
    if (!structured()) {
        m_lists[AnsweredList].enabled = true;
    }
    int r = m_lists[m_activeList].selected;
    if (m_activeList == AnsweredList) {
        return r;
    }
    const int p = s.ExamPosition;
    if (s.ExamAnswers[p] != 0) {
        AddRow(m_lists[AnsweredList], p);
        s.ExamAnswered[p] = True;
        RemoveRow(m_lists[RemainingList], r);
    }
    if (m_lists[RemainingList].rows() == 0) {
        m_lists[RemainingList].enabled = false;
        m_activeList = AnsweredList;
        r = m_lists[AnsweredList].rows() - 2;
        startBlinking();
    }
    return r;
}

void ExamSession::startBlinking() {
    m_frameShown = true;
    m_blinking = true;
}

void ExamSession::pressNext() {
    if (m_closingDown) {
        return;
    }
    if (structured()) {
        m_enabled[PreviousCommand] = true;
        m_enabled[NextCommand] = false;
        m_focus = ExamFocus::Previous;
        return;
    }
    const bool answered = m_state.ExamAnswers[m_state.ExamPosition] != 0;
    const int r = commitItem();
    if (m_activeList == RemainingList) {
        if (answered) {
            selectRow(RemainingList, r);
        } else if (m_lists[RemainingList].rows() >= 2) {
            selectRow(RemainingList, r + 1);
        }
    } else {
        selectRow(AnsweredList, r + 1);
    }
    const ExamList& active = m_lists[m_activeList];
    const bool lastNotFirst = active.selected != 0 && active.selected == active.rows() - 1;
    m_focus = lastNotFirst ? ExamFocus::Previous : ExamFocus::Next;
}

void ExamSession::pressPrevious() {
    if (m_closingDown) {
        return;
    }
    const int r = commitItem();
    if (structured()) {
        m_enabled[PreviousCommand] = false;
        m_focus = ExamFocus::Text;
        if (m_lists[RemainingList].rows() > 0) {
            selectRow(m_activeList, r);
            selectRow(AnsweredList, m_lists[AnsweredList].rows() - 1);
        } else {
            // The last confirmation ends the exam by itself.
            m_examFinished = true;
            m_closeRequested = true;
        }
        return;
    }
    selectRow(m_activeList, r - 1);
    m_focus = m_lists[m_activeList].selected != 0 ? ExamFocus::Previous : ExamFocus::Next;
}

void ExamSession::pressUnsure() {
    if (m_closingDown) {
        return;
    }
    auto& s = m_state;
    const int p = s.ExamPosition;
    const bool answered = s.ExamAnswers[p] != 0;
    if (s.ExamUnsure[p] == UnsureMark) {
        s.ExamUnsure[p] = 0;
        m_answerLabel = answered ? answerText(p) : AnswerPrefix;
    } else {
        s.ExamUnsure[p] = UnsureMark;
        m_answerLabel = answered ? answerText(p) + "   (marked unsure)" : AnswerPrefix + UnsureNote;
    }
    if (m_activeList == AnsweredList) {
        replaceAnsweredRow();
    }
}

bool ExamSession::pressFinished(Dialogs& dialogs) {
    const int remaining = m_lists[RemainingList].rows();
    if (remaining > 0 && !m_timeExpired) {
        const DateValue asked = m_clock.now();
        const auto answer = dialogs.message(
            QString::fromStdString("You failed to answer" + NumberText(remaining) + " questions." +
                                   m_state.catalogue.CrLf +
                                   "Press O.K. to stop and view scoring results or Cancel to "
                                   "keep working."),
            QStringLiteral("Caution..."), MessageIcon::None, MessageButtons::OkCancel);
        if (answer != MessageAnswer::Ok) {
            // The time spent on the question does not count.
            m_clockStart += m_clock.now() - asked;
            return false;
        }
    }
    m_examFinished = true;
    m_closeRequested = true;
    return true;
}

void ExamSession::tick() {
    if (!m_clockRunning) {
        return;
    }
    const ExamClockReading reading =
        ReadExamClock(m_state.ExamMinutes, m_state.ExamElapsed, m_clock.now() - m_clockStart);
    m_state.ExamMinutesLeft = static_cast<int16_t>(reading.minutesLeft);
    m_timeLabel = reading.label;
    m_timeRed = m_timeRed || reading.warning;
    if (!reading.expired) {
        return;
    }
    m_clockRunning = false;
    m_timeExpired = true;
    for (int i : {0, 1, 2, 3, NextCommand, PreviousCommand, BreakCommand, UnsureCommand}) {
        m_enabled[i] = false;
    }
    m_lists[AnsweredList].enabled = false;
    m_lists[RemainingList].enabled = false;
    m_itemRtf.clear();
    m_focus = ExamFocus::Finished;
    m_frameShown = true;
    m_examFinished = true;
}

void ExamSession::blink() {
    m_frameStyle = m_frameStyle == 1 ? 6 : 1;
}

void ExamSession::beginClosing() {
    auto& s = m_state;
    if (m_timeExpired) {
        s.ExamElapsed = s.ExamMinutes / MinutesPerDay;
    } else {
        s.ExamElapsed += m_clock.now() - m_clockStart;
    }
    m_closingDown = true;
    m_clockRunning = false;
    m_blinking = false;
}

int ExamSession::answerForKey(int key, KeySource source) const {
    const int upper = key >= 'a' && key <= 'z' ? key - 'a' + 'A' : key;
    const int choice = upper - 'A';
    if (choice < 0 || choice >= ChoiceCount) {
        return -1;
    }
    if (source == KeySource::List) {
        return m_enabled[0] ? choice : -1;
    }
    return m_enabled[choice] ? choice : -1;
}

ExamFocus ExamSession::takeFocus() {
    const ExamFocus focus = m_focus;
    m_focus = ExamFocus::Unchanged;
    return focus;
}

} // namespace tessera
