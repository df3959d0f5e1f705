#pragma once
// Reading the fields of a stored item fragment and of a glossary entry.

#include <string>
#include <string_view>

namespace tessera {

// The letter of the right choice, "A" to "D", at position 11; 0 for a fragment too short.
char ItemAnswerLetter(std::string_view fragment);

// From position 19 up to the explanation marker: the stem and the four choices.
std::string ItemQuestion(std::string_view fragment);

// From the explanation marker's position plus 6 to the end of the fragment, closing included.
std::string ItemExplanation(std::string_view fragment);

// A glossary entry splits at the first "\par " followed by a further blank: the term is what
// stands before it less CR LF, the definition what stands behind those six characters.
std::string GlossaryTerm(std::string_view entry);
std::string GlossaryDefinition(std::string_view entry);

} // namespace tessera
