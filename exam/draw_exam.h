#pragma once
// DrawExam: turns the builder's choice into the items of a new exam.

namespace tessera {

struct SessionState;
class Random;
class Clock;

// A draw in 1..n: the whole part of u times n, plus 1.
int DrawInRange(Random& random, int n);

// Builds ExamItems(1..ExamItemCount) for a new exam of ExamType 1 to 3 and clears the answer
// tables. A custom exam is the head of the shuffled pool of the chosen topics, put back into
// running order when not scrambled; an author-prepared exam is its items in content order,
// shuffled when scrambled. The remaining list is positions 1..ExamItemCount.
void DrawExam(SessionState& state, Random& random, const Clock& clock);

} // namespace tessera
