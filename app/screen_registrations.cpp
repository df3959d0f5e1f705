#include "app/screen_registrations.h"

#include "core/core_screens.h"
#include "exam/exam_screens.h"
#include "reports/reports_screens.h"
#include "review/review_screens.h"
#include "tools/tool_screens.h"

namespace tessera {

// Each subsystem adds its include above and its one line here.
void RegisterAllScreens(ScreenRegistry& registry) {
    RegisterCoreScreens(registry);
    RegisterExamScreens(registry);
    RegisterReportScreens(registry);
    RegisterReviewScreens(registry);
    RegisterToolScreens(registry);
}

} // namespace tessera
