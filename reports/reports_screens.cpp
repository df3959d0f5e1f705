#include "reports/reports_screens.h"

#include "reports/scoring.h"

namespace tessera {

void RegisterReportScreens(ScreenRegistry& registry) {
    registry.add<Scoring>(ScreenName::Scoring);
}

} // namespace tessera
