#pragma once
// The glossary's letter buttons and its search over terms and definitions, apart from the screen.
// List positions count from 1, as the list's entries do; 0 means none.

#include <QString>
#include <QStringList>

#include <array>

namespace tessera {

inline constexpr int LetterCount = 26;

// Entry i: the position of the first term that begins with letter i ("A" is 0), 0 if none does;
// entry 26: the number of terms plus 1.
using LetterStarts = std::array<int, LetterCount + 1>;

LetterStarts GlossaryLetterStarts(const QStringList& terms);

// Where a press of letter button `letter` puts the list. Repeated presses of one letter walk
// through its terms and then wrap round to the letter's first term.
int LetterJump(const LetterStarts& starts, int letter, int lastLetter, int selected, int count);

enum class GlossaryField { Terms, Definitions, Both };

struct GlossarySearch {
    QString text; // blanks already cut from both ends
    bool matchCase = false;
    GlossaryField field = GlossaryField::Terms;
};

// Find Next: walks the list behind the selected entry, wrapping round once from the end to the
// start. Returns the hit's position, which is also left in lastFound, or 0 when nothing matched.
int GlossaryFindNext(const QStringList& terms, const QStringList& definitions,
                     const GlossarySearch& search, int selected, int& lastFound);

} // namespace tessera
