#include "exam/exam_screens.h"

#include "exam/exam_set.h"
#include "exam/exam_test.h"
#include "exam/results.h"

namespace tessera {

void RegisterExamScreens(ScreenRegistry& registry) {
    registry.add<ExamSet>(ScreenName::ExamSet);
    registry.add<ExamTest>(ScreenName::ExamTest);
    registry.add<Results>(ScreenName::Results);
}

} // namespace tessera
