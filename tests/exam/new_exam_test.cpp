// A new exam: the builder's values (captions by take counter, the pool and its guards, custom
// values kept), then the draw (the pool, the whole-range shuffle, the head of the pool, the order).

#include "exam/draw_exam.h"
#include "exam/exam_set_form.h"
#include "tests/support/study_fixture.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tessera {
namespace {

// Topic 1 has 90 items, topic 2 only 12; the exams 150 and 140.
struct Builder : StudyFixture {
    Builder() { FillSmallCourse(state, {90, 12, 100, 100, 100, 100, 100, 100, 94}, {150, 140}); }
};

// The builder as it stands: the selected exam and the three captions' drill ('-' behind a
// disabled one), the rows of time and length ('-' when the lists are disabled), the topics
// checked ('-' when disabled), the pool's count, the approach and order, and '!' when "&Take
// Exam" is disabled.
std::string Shown(const ExamSetForm& form) {
    std::string text = std::to_string(form.selectedExam());
    for (int e = 0; e < 3; ++e) {
        const std::string& caption = form.examCaption(e);
        text += "|" + caption.substr(caption.rfind(" - ") + 3) + (form.examEnabled(e) ? "" : "-");
    }
    text += "|" + std::to_string(form.timeRow()) + "/" + std::to_string(form.itemRow()) +
            (form.listsEnabled() ? " " : "- ");
    for (int t = 0; t < TopicCount; ++t)
        text += form.topicChecked(t) ? std::to_string(t + 1) : "";
    return text + (form.topicsEnabled() ? "|" : "-|") + form.poolText().substr(24) +
           (form.structured() ? "|structured" : "|traditional") +
           (form.scrambled() ? " scrambled" : "") + (form.takeEnabled() ? "" : "!");
}

TEST(ExamSetForm, PoolGuardsCustomValuesKeptWhileAnAuthorExamIsSelectedAndTake) {
    Builder b;
    std::tie(b.state.TakeCounts[10], b.state.TakeCounts[11], b.state.ExamKind,
             b.state.ExamItemCount, b.state.ExamMinutes) = std::tuple(3, 3, 3, 40, 255);
    ExamSetForm form(b.state);
    // It opens on the first exam not finished, or on the custom exam last taken.
    Builder other;
    std::tie(other.state.TakeCounts[10], other.state.TakeCounts[11], other.state.TakeCounts[12]) =
        std::tuple(3, 2, 1);
    const ExamSetForm first(other.state);
    EXPECT_EQ(first.examCaption(1) + "|" + TopicCaption(other.state, 2) + "|" + Shown(first),
              "Exam II - Author Prepared - Last Drill| 2   Preliminary Evaluation|1|Finished-|Last "
              "Drill|2nd Drill|38/139- 123456789-|  796|traditional scrambled");
    const std::string captions = "|Finished-|Finished-|1st Drill|";
    EXPECT_EQ(Shown(form), "2" + captions + "50/39 123456789|  796|traditional scrambled");
    // 300 questions, then a single topic of 12: the number is pulled down to the pool.
    form.selectItemRow(299);
    for (int i = 0; i < TopicCount; ++i)
        form.setTopic(i, i == 1);
    EXPECT_EQ(form.itemRow(), 11);
    form.setTopic(1, false);
    EXPECT_EQ(Shown(form), "2" + captions + "50/11 |    0|traditional scrambled!");
    // To an author-prepared exam and back: items and time return, topics from ExamTopics.
    form.selectTimeRow(0);
    form.selectExam(0);
    EXPECT_EQ(Shown(form), "0" + captions + "38/149- 123456789-|  796|traditional scrambled");
    form.selectExam(2);
    EXPECT_EQ(Shown(form), "2" + captions + "0/11 123456789|  796|traditional scrambled");
    // Take leaves the choice in the session; 5 minutes is the first time row.
    form.setTopic(4, false);
    form.setStructured(true);
    form.setScrambled(false);
    form.take();
    const SessionState& s = b.state;
    EXPECT_EQ(std::tuple(s.ExamKind, s.ExamType, s.ExamMinutes, s.ExamItemCount, s.ExamTopics[5],
                         s.ExamTopics[6], s.ExamStructured, s.ExamScrambled),
              std::tuple(3, 3, 5, 12, false, true, 1, false));
}

std::vector<int> Draw(StudyFixture& f, int kind, bool scrambled, int count,
                      std::initializer_list<double> draws) {
    SessionState& s = f.state;
    std::tie(s.ExamKind, s.ExamScrambled, s.ExamItemCount) = std::tuple(kind, scrambled, count);
    f.random.script(draws);
    DrawExam(s, f.random, f.clock);
    return {s.ExamItems.begin() + 1, s.ExamItems.begin() + 1 + count};
}

TEST(DrawExam, TakesTheHeadOfTheShuffledPoolOrTheContentOrder) {
    StudyFixture f;
    SessionState& s = f.state;
    // Topic 2 holds running numbers 5..7, topic 4 13..14, topic 9 23..25.
    s.ExamTopics.fill(false);
    s.ExamTopics[2] = s.ExamTopics[4] = s.ExamTopics[9] = true;
    s.ExamAnswers[5] = 2; // a draw clears the answers of an earlier exam
    EXPECT_EQ(Draw(f, 3, false, 8, {0.9, 0.1, 0.6, 0.3, 0.75, 0.2, 0.4, 0.8}),
              (std::vector<int>{5, 6, 7, 13, 14, 23, 24, 25}));
    EXPECT_EQ(s.ExamAnswers[5], 0);

    s.ExamTopics[4] = s.ExamTopics[9] = false; // pool 5, 6, 7
    // i=1: r=3 -> 7 6 5; i=2: r=1 -> 6 7 5; i=3: r=3 (the last still draws) -> 6 7 5
    EXPECT_EQ(Draw(f, 3, true, 2, {0.9, 0.1, 0.7}), (std::vector<int>{6, 7}));
    EXPECT_EQ(s.ExamPool[3], 5);
    EXPECT_EQ(f.random.calls(), 8 + 3);
    EXPECT_EQ(f.random.seeds().size(), 2u); // seeded from the system's timer on each draw

    // Exam II starts with the item after exam I's last.
    EXPECT_EQ(Draw(f, 2, false, 5, {}), (std::vector<int>{7, 8, 9, 10, 11}));
    EXPECT_EQ(f.random.calls(), 8 + 3);
    // Draws alternate 6 and 1: 6 2 3 4 5 1, 2 6 3 4 5 1, 2 6 1 4 5 3, 4 6 1 2 5 3, ...
    EXPECT_EQ(Draw(f, 1, true, 6, {0.99, 0.0, 0.99, 0.0, 0.99, 0.0}),
              (std::vector<int>{5, 6, 1, 2, 3, 4}));
}

} // namespace
} // namespace tessera
