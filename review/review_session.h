#pragma once
// The review test as it runs, without widgets: the item on screen, the answers still open, the
// commands and their captions, the feedback, the clocks and what closing saves. Quiz800 shows
// it and forwards its events; nothing here is read back from a widget.
//
// A suspended test needs nothing of this class: its whole state is in SessionState (the test
// fields), written and read as a ReviewTestRecord by SaveReviewTest and the start-up's restore,
// and journalled after every answer (core/run_journal.h). The fields below are the open item's
// and go with the screen.

#include "core/course_catalogue.h"
#include "core/rich_text_documents.h"
#include "core/session_state.h"
#include "review/item_scoring.h"

#include <array>
#include <initializer_list>
#include <optional>
#include <string>

namespace tessera {

struct SaveResult;
struct Services;

// Quiz800's Command1 by index; 4 is not used.
struct ReviewCommand {
    enum Index : int {
        AnswerA = 0,
        AnswerD = 3,
        Aladdin = 5,
        Next = 6,  // "&Next", or "&Done" on the last item
        Break = 7, // "&Break", or "&Cancel" on the first item of a new test
        Help = 8,
        NoteBook = 9,
        Calculator = 10,
        Previous = 11,
        Picture = 12,
        Count = 13,
    };
};

// Where the keyboard focus goes after an event.
enum class ReviewFocus { Unchanged, Text, Next, Previous };

class ReviewSession {
public:
    ReviewSession(SessionState& state, Services& services);

    // Form_Load: a new All Items test when TestPosition is 0, otherwise the test where it stands.
    void start();
    // ShowItem: the item at the position, open, with its clocks started.
    void showItem(int position);

    // The answer buttons A to D (0 to 3): the letter becomes GivenAnswer.
    void answerCommand(int button);
    // A letter typed on the form, then the same key at the control that has the focus.
    void formKeyPress(int keyCode);
    void keyAnswer(int keyCode);
    // "&Next", or on the last item the end of the test; true when the screen is to close.
    bool nextItem();
    void previousItem();
    // What the Aladdin dialog left in ActiveWish.
    void applyWish();
    // Form_Unload's part of the test: the time, the plan, the save and what a failed save tells.
    void unload();
    bool isUnloaded() const { return m_unloaded; }

    // What the screen shows.
    bool isOpen(int command) const { return m_open[static_cast<size_t>(command)]; }
    bool cancellable() const { return m_cancellable; }
    bool doneCaption() const { return m_done; }
    const std::string& feedback() const { return m_feedback; }
    int feedbackColour() const { return m_feedbackColour; }
    const PerformanceLabels& performance() const { return m_performance; }
    const RtfVersions& document() const { return m_document; }
    // Grows whenever the document changes, so that the screen reloads only then.
    int documentRevision() const { return m_documentRevision; }
    bool timerRunning() const { return m_timerRunning; }
    int progressPercent() const;
    std::string itemClock() const;
    std::string elapsedClock() const;
    // The picture of the item on screen, if it has one.
    std::optional<PictureEntry> picture() const;
    // Answers still open, as the Aladdin dialog counts them.
    int openAnswers() const;
    ReviewFocus takeFocus();
    // Grows whenever an item is shown, so that the screen shows or unloads its picture only then.
    int itemRevision() const { return m_itemRevision; }

private:
    void buildAllItemsTest();
    void processAnswer(int& letter, int button);
    void revealAnswer();
    void endTest();
    void coinToss();
    SaveResult saveTest();
    void updatePerformance();
    void setFeedback(const std::string& text, int colour);
    // A wish's line takes the colour the feedback has already.
    void setFeedback(const std::string& text);
    void setDocument(const std::string& rtf);
    void setOpen(std::initializer_list<int> commands, bool open);
    bool isLastPosition() const;
    DateValue now() const;

    SessionState& m_state;
    Services& m_services;

    int RightAnswer = 0;
    int GivenAnswer = 0;
    std::string QuestionRtf;
    std::string ExplanationRtf;
    DateValue ItemStart = 0;
    bool TestFinished = false;

    std::array<bool, ReviewCommand::Count> m_open{};
    bool m_cancellable = false;
    bool m_done = false;
    bool m_unloaded = false;
    bool m_closeAsked = false;
    bool m_timerRunning = false;
    std::string m_feedback; // Label2's caption as the system writes it, with CR LF
    int m_feedbackColour = NeutralColour;
    PerformanceLabels m_performance;
    RtfVersions m_document;
    int m_documentRevision = 0;
    int m_itemRevision = 0;
    ReviewFocus m_focus = ReviewFocus::Unchanged;
};

} // namespace tessera
