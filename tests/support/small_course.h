#pragma once
// The small course every test builds on: a few review items in each topic, two short exams,
// the help and discussion texts, and a full glossary whose terms skip the letters Q and X.

#include "core/session_state.h"

#include <string>
#include <vector>

namespace tessera {

// Review items of topics 1 to 9, and items of Exam I and Exam II, unless a test asks otherwise.
inline const std::vector<int> SmallTopicCounts = {4, 3, 5, 2, 2, 2, 2, 2, 3};

// Fills the catalogue and the course into the session. Item t.j reads "Question t.j" with the
// answers "one" to "four" and "Explanation t.j"; help text k reads "Help text k", discussion k
// "Discussion k: read it twice.", glossary entry p "Meaning number p." (entry 700 also holds
// "a hidden needle").
void FillSmallCourse(SessionState& state, const std::vector<int>& topicCounts = SmallTopicCounts,
                     const std::vector<int>& examCounts = {6, 5});

} // namespace tessera
