#pragma once
// The exam while it runs, as values: the answered and remaining lists, the item on screen,
// answering, committing, review and skip or the structured steps, the unsure mark, the clock.
// ExamTest shows these values and forwards its events here; nothing here touches a widget.

#include "core/date_value.h"

#include <array>
#include <string>
#include <vector>

namespace tessera {

struct SessionState;
class Clock;
class Random;
class Dialogs;

// A list of positions kept sorted, as a list sorted by its "@@@@" row texts is.
struct ExamList {
    std::vector<int> positions;
    int selected = -1; // row counted from 0; -1 for none
    bool enabled = true;

    int rows() const { return static_cast<int>(positions.size()); }
    int selectedPosition() const;
};

// Where a key was pressed: the rules for the answer letters differ.
enum class KeySource { Button, Text, List };

// The control that is to have the focus after an event.
enum class ExamFocus { Unchanged, Next, Previous, Finished, Text };

inline constexpr int AnsweredList = 0;
inline constexpr int RemainingList = 1;
inline constexpr int NextCommand = 5;
inline constexpr int PreviousCommand = 6;
inline constexpr int BreakCommand = 7;
inline constexpr int FinishedCommand = 8;
inline constexpr int UnsureCommand = 10;
inline constexpr int PictureCommand = 12;
inline constexpr int ExamCommandCount = 13;

// The row texts: the position in 4 columns; answered rows add 2 blanks, the letter and "?".
std::string RemainingRowText(int position);
std::string AnsweredRowText(int position, int answer, bool unsure);

// The counts in the frame's caption.
std::string CountsCaption(int answered, int remaining);

// Where the clock stands: whole minutes left, the label, and whether time is up.
struct ExamClockReading {
    int minutesLeft = 0;
    std::string label;
    bool warning = false;
    bool expired = false;
};
ExamClockReading ReadExamClock(int examMinutes, DateValue examElapsed, DateValue sinceStart);

class ExamSession {
public:
    ExamSession(SessionState& state, const Clock& clock, Random& random);

    // Form_Load: draws a new exam, sets up a retake, or resumes; shows the first item.
    void open();

    // Events of the screen, as the user or a key raises them.
    void selectRow(int list, int row); // List1_Click after the row is selected
    void pressAnswer(int choice);      // 0 for "A"
    void pressNext();
    void pressPrevious(); // "&Previous", or "Confirm" in the structured approach
    void pressUnsure();
    // "&Finished": asks when items remain; false when the user keeps working.
    bool pressFinished(Dialogs& dialogs);
    void tick();  // Timer1, every 200 milliseconds
    void blink(); // Timer2, every 300 milliseconds
    // Form_Unload's first steps: the time used, and list clicks stop counting.
    void beginClosing();

    // The answer button a key presses, 0 for "A", or -1 when the key does nothing.
    int answerForKey(int key, KeySource source) const;

    const ExamList& list(int index) const { return m_lists[index]; }
    std::string rowText(int list, int row) const;
    int activeList() const { return m_activeList; }
    int greenList() const { return m_greenList; }
    bool enabled(int command) const { return m_enabled[command]; }
    std::string previousCaption() const { return m_confirm ? "Confirm" : "&Previous"; }
    std::string breakCaption() const;
    std::string countsCaption() const;
    const std::string& windowCaption() const { return m_windowCaption; }
    const std::string& answerLabel() const { return m_answerLabel; }
    const std::string& timeLabel() const { return m_timeLabel; }
    bool timeLabelRed() const { return m_timeRed; }
    const std::string& itemRtf() const { return m_itemRtf; }
    int progress() const { return m_progress; }
    bool frameShown() const { return m_frameShown; }
    bool blinking() const { return m_blinking; }
    int frameBorderStyle() const { return m_frameStyle; }
    bool clockRunning() const { return m_clockRunning; }
    bool timeExpired() const { return m_timeExpired; }
    bool examFinished() const { return m_examFinished; }
    bool closeRequested() const { return m_closeRequested; }
    // Counts each showing of an item, so that the screen shows or unloads the picture anew.
    int itemShowings() const { return m_itemShowings; }
    int pictureEntry() const { return m_pictureEntry; }
    // The focus that the last event asked for; reading it clears it.
    ExamFocus takeFocus();

private:
    bool structured() const;
    void showExamItem(int position);
    int commitItem();
    std::string answerText(int position) const;
    void setAnswerLabel(int position);
    void replaceAnsweredRow();
    void startBlinking();

    SessionState& m_state;
    const Clock& m_clock;
    Random& m_random;
    std::array<ExamList, 2> m_lists;
    std::array<bool, ExamCommandCount> m_enabled{};
    int m_activeList = 0;
    int m_greenList = -1;
    bool m_confirm = false;
    std::string m_windowCaption;
    std::string m_answerLabel = "Your Answer: ";
    std::string m_timeLabel = "Time Remaining: ";
    bool m_timeRed = false;
    std::string m_itemRtf;
    int m_progress = 0;
    bool m_frameShown = false;
    bool m_blinking = false;
    int m_frameStyle = 1;
    bool m_clockRunning = true;
    bool m_timeExpired = false;
    bool m_examFinished = false;
    bool m_closingDown = false;
    bool m_closeRequested = false;
    DateValue m_clockStart = 0;
    int m_itemShowings = 0;
    int m_pictureEntry = 0;
    ExamFocus m_focus = ExamFocus::Unchanged;
};

} // namespace tessera
