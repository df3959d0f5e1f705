#pragma once
// The notebook's search over its plain text, apart from the screen.

#include <QString>

namespace tessera {

// The notebook's Find Next over its plain text: the search begins one character behind
// lastFound and wraps round once to the first character. Returns the new lastFound, the
// 1-based position of the hit, or 0 when the text occurs nowhere.
int NoteBookFindNext(const QString& text, const QString& what, bool matchCase, int lastFound);

} // namespace tessera
