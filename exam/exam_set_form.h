#pragma once
// The builder's controls as values, and its rules: which exam, approach, order, length, time
// and topics, the pool and its guards. The ExamSet screen shows these values and forwards its
// events here; nothing here touches a widget.

#include "core/course_catalogue.h"

#include <array>
#include <string>

namespace tessera {

struct SessionState;

inline constexpr int TimeRowCount = 51;  // 5 to 255 minutes in steps of 5
inline constexpr int ItemRowCount = 300; // 1 to 300 questions
inline constexpr int AuthorExamTimeRow = 38;

// The row texts of the two lists and the topic captions.
std::string BuilderRowText(int value);
std::string TopicCaption(const SessionState& state, int topic);

class ExamSetForm {
public:
    // Form_Load: fills and sets every control from the session.
    explicit ExamSetForm(SessionState& state);

    // The user's acts; each raises what the control's click raises.
    void selectExam(int index);
    void setTopic(int index, bool checked);
    void selectTimeRow(int row);
    void selectItemRow(int row);
    void setStructured(bool structured) { m_structured = structured; }
    void setScrambled(bool scrambled) { m_scrambled = scrambled; }

    // "&Take Exam": leaves the choice in the session for ExamTest.
    void take() const;

    // Option3
    int selectedExam() const { return m_exam; }
    bool examEnabled(int index) const { return m_examEnabled[index]; }
    const std::string& examCaption(int index) const { return m_examCaption[index]; }
    // Option1(0) selected; Check1 checked
    bool structured() const { return m_structured; }
    bool scrambled() const { return m_scrambled; }
    // List1(0), List1(1)
    int timeRow() const { return m_timeRow; }
    int itemRow() const { return m_itemRow; }
    bool listsEnabled() const { return m_listsEnabled; }
    // Check2
    bool topicChecked(int index) const { return m_topics[index]; }
    bool topicsEnabled() const { return m_topicsEnabled; }
    // Command1(0), Label2
    bool takeEnabled() const { return m_takeEnabled; }
    int pool() const { return m_pool; }
    std::string poolText() const;

private:
    void setTopicsFromSession();
    void refreshPool();

    SessionState& m_state;
    int m_exam = -1;
    std::array<bool, 3> m_examEnabled{true, true, true};
    std::array<std::string, 3> m_examCaption;
    bool m_structured = false;
    bool m_scrambled = true;
    int m_timeRow = -1;
    int m_itemRow = -1;
    bool m_listsEnabled = true;
    std::array<bool, TopicCount> m_topics{};
    bool m_topicsEnabled = true;
    bool m_takeEnabled = true;
    int m_pool = 0;
    int m_customItems = 0;
    int m_customTimeSlot = 0;
};

} // namespace tessera
