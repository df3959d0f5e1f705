#include "review/review_screens.h"

#include "review/pict_form.h"
#include "review/quiz800.h"
#include "review/quiz_summ.h"

namespace tessera {

// Aladdin is not among them: Quiz800 opens it itself and reads what was chosen.
void RegisterReviewScreens(ScreenRegistry& registry) {
    registry.add<Quiz800>(ScreenName::Quiz800);
    registry.add<PictForm>(ScreenName::PictForm);
    registry.add<QuizSumm>(ScreenName::QuizSumm);
}

} // namespace tessera
