#include "exam/exam_end.h"

#include "core/date_value.h"
#include "core/progress_file.h"
#include "core/records.h"
#include "core/session_state.h"
#include "exam/exam_format.h"
#include "platform/dialogs.h"

namespace tessera {

namespace {
constexpr float KeptShare = 30.0f;
constexpr float TakeShare = 70.0f; // a constant of its own, beside PassingGrade
constexpr int TakeLimit = 3;

void TellBeyondHeader(Dialogs& dialogs) {
    dialogs.message(QString::fromLatin1(SuspendedBeyondHeaderMessage),
                    QString::fromLatin1(SuspendedBeyondHeaderTitle), MessageIcon::Exclamation,
                    MessageButtons::Ok);
}
} // namespace

ExamEndPlan PlanExamEnd(float score, int examType, int takeCount, int passingGrade) {
    const float s = score * 100.0f;
    ExamEndPlan plan;
    plan.log = examType <= 4;
    if (s < KeptShare) {
        plan.remove = true;
    } else if (s >= TakeShare || s >= static_cast<float>(passingGrade)) {
        plan.countTake = takeCount < TakeLimit && examType <= 4;
    }
    return plan;
}

ExamEndOutcome EndExam(SessionState& state, bool finished, int committedRows, DateValue today,
                       Dialogs& dialogs, const std::function<void()>& refreshNavigation) {
    ExamEndOutcome outcome;
    if (committedRows == 0) {
        state.ExamPosition = 0;
        return outcome;
    }
    // A finished exam's log entry and take go into the file with its record, in one write.
    const int counter = state.ExamKind + TopicCount;
    ExamEndPlan plan;
    const SaveResult save = SaveExam(state, finished, today, [&](float score) {
        plan = PlanExamEnd(score, state.ExamType, state.TakeCounts[counter], state.PassingGrade);
        ExamFiling filing;
        if (plan.log)
            filing.log = LogEntry{counter, score};
        filing.countTake = plan.countTake;
        return filing;
    });
    outcome.saved = save.status != SaveStatus::FileFailed;
    if (save.status == SaveStatus::SuspendedBeyondHeader) {
        TellBeyondHeader(dialogs);
    }
    if (refreshNavigation) {
        refreshNavigation();
    }
    // An exam whose save failed is not over: it is logged and counted when it is finished again.
    if (!finished || !outcome.saved) {
        return outcome;
    }
    if (plan.remove) {
        RemoveProgressRecord(state, save.recordNumber, today);
        outcome.removed = true;
        dialogs.message(
            QString::fromStdString("You answered " + ShortShareText(state.ExamScore) +
                                   " (less than 30%) of the questions correctly. Therefore, this "
                                   "exam has not been recorded on your Exam Report Card."),
            QStringLiteral("Sorry!"), MessageIcon::Question, MessageButtons::Ok);
    } else if (plan.countTake) {
        ++state.TakeCounts[counter];
    }
    outcome.showResults = true;
    return outcome;
}

} // namespace tessera
