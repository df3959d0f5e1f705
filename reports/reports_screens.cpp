#include "reports/reports_screens.h"

#include "reports/navigator.h"
#include "reports/scoring.h"

namespace tessera {

void RegisterReportScreens(ScreenRegistry& registry) {
    registry.add<Scoring>(ScreenName::Scoring);
    registry.add<Navigator>(ScreenName::Navigator);
}

} // namespace tessera
