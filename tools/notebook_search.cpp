#include "tools/notebook_search.h"

#include <algorithm>

namespace tessera {

int NoteBookFindNext(const QString& text, const QString& what, bool matchCase, int lastFound) {
    if (what.isEmpty())
        return 0;
    const Qt::CaseSensitivity sensitivity = matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive;
    const qsizetype from = std::min<qsizetype>(lastFound, text.size());
    qsizetype hit = text.indexOf(what, from, sensitivity);
    if (hit < 0 && from > 0)
        hit = text.indexOf(what, 0, sensitivity);
    return hit < 0 ? 0 : static_cast<int>(hit) + 1;
}

} // namespace tessera
