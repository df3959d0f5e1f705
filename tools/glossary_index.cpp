#include "tools/glossary_index.h"

namespace tessera {
namespace {

QChar FirstLetter(const QString& term) {
    return term.isEmpty() ? QChar() : term.at(0).toUpper();
}

bool Contains(const QString& haystack, const QString& needle, bool matchCase) {
    return matchCase ? haystack.contains(needle) : haystack.toUpper().contains(needle.toUpper());
}

bool Matches(const QString& term, const QString& definition, const GlossarySearch& search) {
    switch (search.field) {
    case GlossaryField::Terms:
        return Contains(term, search.text, search.matchCase);
    case GlossaryField::Definitions:
        return Contains(definition, search.text, search.matchCase);
    case GlossaryField::Both:
        return Contains(term + definition, search.text, search.matchCase);
    }
    return false;
}

} // namespace

LetterStarts GlossaryLetterStarts(const QStringList& terms) {
    LetterStarts starts{};
    QChar before;
    for (int position = 1; position <= terms.size(); ++position) {
        const QChar letter = FirstLetter(terms.at(position - 1));
        if (letter != before && letter >= QLatin1Char('A') && letter <= QLatin1Char('Z')) {
            const int index = letter.unicode() - 'A';
            if (starts[index] == 0)
                starts[index] = position;
        }
        before = letter;
    }
    starts[LetterCount] = static_cast<int>(terms.size()) + 1;
    return starts;
}

int LetterJump(const LetterStarts& starts, int letter, int lastLetter, int selected, int count) {
    if (starts[letter] == 0)
        return selected;
    if (letter == lastLetter && selected != count) {
        int next = letter + 1;
        while (next < LetterCount && starts[next] == 0)
            ++next;
        if (selected <= starts[next] - 2)
            return selected + 1;
    }
    return starts[letter];
}

int GlossaryFindNext(const QStringList& terms, const QStringList& definitions,
                     const GlossarySearch& search, int selected, int& lastFound) {
    const int count = static_cast<int>(terms.size());
    if (lastFound < count)
        lastFound = selected;
    for (;;) {
        for (int position = lastFound + 1; position <= count; ++position) {
            if (Matches(terms.at(position - 1), definitions.value(position - 1), search)) {
                lastFound = position;
                return position;
            }
        }
        if (lastFound == 0)
            return 0;
        lastFound = 0;
    }
}

} // namespace tessera
