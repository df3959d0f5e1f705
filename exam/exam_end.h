#pragma once
// The end of an exam once ExamTest closes: the save, the log, the rule of 30% and the take
// counter, and whether Results comes up.

#include "core/date_value.h"

#include <functional>

namespace tessera {

struct SessionState;
class Dialogs;

// What a finished exam's score leads to.
struct ExamEndPlan {
    bool log = false;       // a log entry: not for retakes of the missed or unsure items
    bool remove = false;    // below 30%: the record goes again
    bool countTake = false; // the take counter rises
};

// s is the score times 100 in single precision. A take counts at the lower of 70 and the
// passing grade, for a first attempt or a "Retake All Items", up to three.
ExamEndPlan PlanExamEnd(float score, int examType, int takeCount, int passingGrade);

struct ExamEndOutcome {
    bool saved = false;
    bool removed = false;
    bool showResults = false;
};

// Form_Unload from the save on. With nothing committed nothing is written and the exam is
// gone; otherwise SaveExam, then refreshNavigation; a finished exam is logged, removed under
// 30% with the user told, or counted, and Results is to open.
ExamEndOutcome EndExam(SessionState& state, bool finished, int committedRows, DateValue today,
                       Dialogs& dialogs, const std::function<void()>& refreshNavigation);

} // namespace tessera
