#include "exam/exam_set_form.h"

#include "core/navigation.h"
#include "core/session_state.h"
#include "exam/exam_format.h"

namespace tessera {

std::string BuilderRowText(int value) {
    return CountColumns(value);
}

std::string TopicCaption(const SessionState& state, int topic) {
    return NumberText(topic) + "   " + state.catalogue.TopicTitles[topic];
}

namespace {
const std::array<const char*, 3> ExamCaptions{"Exam I - Author Prepared",
                                              "Exam II - Author Prepared", "Custom Built by You"};
}

ExamSetForm::ExamSetForm(SessionState& state) : m_state(state) {
    if (state.ExamKind == 3) {
        setTopicsFromSession();
    } else {
        m_listsEnabled = false;
        m_topicsEnabled = false;
    }
    const int kind = state.ExamKind >= 1 && state.ExamKind <= 3 ? state.ExamKind : 1;
    selectExam(kind - 1);
    if (kind < 3) {
        state.ExamItemCount = state.content.ItemCounts[kind][2];
    }
    selectTimeRow(state.ExamMinutes / 5 - 1);
    selectItemRow(state.ExamItemCount - 1);
    m_customItems = state.ExamItemCount;
    m_customTimeSlot = m_timeRow + 1;
    m_structured = state.ExamStructured != 0;
    m_scrambled = state.ExamScrambled;
    for (int i = 0; i < 3; ++i) {
        const int count = state.TakeCounts[TopicCount + 1 + i];
        m_examCaption[i] = ExamCaptions[i] + DrillSuffix(count);
        if (count >= 3) {
            m_examEnabled[i] = false;
            if (m_exam == i) {
                m_exam = -1;
            }
        }
    }
    // Always opens on the first exam not yet finished; the custom values stay behind.
    for (int i = 0; i < 3; ++i) {
        if (m_examEnabled[i]) {
            selectExam(i);
            break;
        }
    }
}

void ExamSetForm::selectExam(int index) {
    if (index < 0 || index > 2) {
        return;
    }
    m_exam = index;
    if (index < 2) {
        if (m_listsEnabled) {
            m_customTimeSlot = m_timeRow + 1;
            m_customItems = m_itemRow + 1;
        }
        m_topicsEnabled = false;
        for (int i = 0; i < TopicCount; ++i) {
            setTopic(i, true);
        }
        selectTimeRow(AuthorExamTimeRow);
        selectItemRow(m_state.content.ItemCounts[index + 1][2] - 1);
        m_takeEnabled = true;
        m_listsEnabled = false;
    } else {
        m_listsEnabled = true;
        selectTimeRow(m_customTimeSlot - 1);
        selectItemRow(m_customItems - 1);
        m_topicsEnabled = true;
        setTopicsFromSession();
    }
}

void ExamSetForm::setTopicsFromSession() {
    for (int i = 0; i < TopicCount; ++i) {
        setTopic(i, m_state.ExamTopics[i + 1]);
    }
}

void ExamSetForm::setTopic(int index, bool checked) {
    if (index < 0 || index >= TopicCount || m_topics[index] == checked) {
        return;
    }
    m_topics[index] = checked;
    refreshPool();
}

void ExamSetForm::selectTimeRow(int row) {
    m_timeRow = row >= 0 && row < TimeRowCount ? row : -1;
}

void ExamSetForm::selectItemRow(int row) {
    m_itemRow = row >= 0 && row < ItemRowCount ? row : -1;
    refreshPool();
}

void ExamSetForm::refreshPool() {
    int total = 0;
    for (int t = 1; t <= TopicCount; ++t) {
        if (m_topics[t - 1]) {
            total += m_state.content.ItemCounts[t][1];
        }
    }
    m_pool = total;
    m_takeEnabled = total != 0;
    // A custom exam can never ask for more items than the pool has.
    if (total != 0 && m_exam == 2 && m_itemRow > total - 1) {
        selectItemRow(total - 1);
    }
}

std::string ExamSetForm::poolText() const {
    return "Items Available in Pool: " + CountColumns(m_pool);
}

void ExamSetForm::take() const {
    m_state.ExamMinutes = static_cast<int16_t>((m_timeRow + 1) * 5);
    m_state.ExamItemCount = static_cast<int16_t>(m_itemRow + 1);
    for (int t = 1; t <= TopicCount; ++t) {
        m_state.ExamTopics[t] = m_topics[t - 1];
    }
    m_state.ExamKind = static_cast<int16_t>(m_exam + 1);
    m_state.ExamType = m_state.ExamKind;
    m_state.ExamStructured = m_structured ? 1 : 0;
    m_state.ExamScrambled = m_scrambled;
}

} // namespace tessera
