#pragma once
// The printed screening exam report card: heads, one line a row and for a custom exam its
// topics and an empty line, the rule and the totals, a page a copy.

#include "platform/card_print.h"
#include "reports/scoring_rows.h"

#include <string>
#include <vector>

namespace tessera {

inline constexpr const char* ScoringCaption = "Screening Exam Report Card";

// The card's rows in its order on paper; fontName is PrintFontName.
PrintedCard ScoringPaper(const std::vector<ScoringRow>& rows, const std::string& fontName);

} // namespace tessera
