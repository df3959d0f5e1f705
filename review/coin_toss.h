#pragma once
// The 50:50 wish: which wrong answer survives, and how a removed answer leaves the question.

#include <array>
#include <string>

namespace tessera {

class Random;

// Draws until it hits a marked answer; -1 when nothing is marked.
int DrawCoinTossSurvivor(const std::array<bool, 4>& marks, Random& random);

// Cuts the answer of index (0 for A) out of the question fragment, from its "\par " to the next
// one, leaving a line break so that a blank line stands in its place. A question without that
// answer stays as it is.
void CutAnswerText(std::string& question, int index, const std::string& crLf);

} // namespace tessera
