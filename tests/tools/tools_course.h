#pragma once
// A small course in memory for the tool screens' tests: help texts, discussion texts and a full
// glossary whose terms skip the letters Q and X.

#include "core/session_state.h"

#include <string>

namespace tessera {

// The term at list position p (from 1) of the made-up glossary.
std::string ToolsTerm(int position);

// The prologue, 17 help texts "Help text k", 7 discussion texts and 1181 glossary entries.
void FillToolsCourse(SessionState& state);

} // namespace tessera
