#pragma once
// The item behind an exam position: its fragment, key, question, explanation and picture.

#include <string>

namespace tessera {

struct SessionState;

// The fragment of position p: ExamItemTexts for exams I and II, ReviewItems for a custom exam.
const std::string& ExamItemText(const SessionState& state, int position);

// The right choice of a fragment, 1 for "A": the code of character 11 minus 64.
int ExamKeyOf(const std::string& fragment);

// The PictureItems entry of position p, or 0; only items of a custom exam have pictures.
int ExamItemPicture(const SessionState& state, int position);

// The question document: RtfHeader, the question, "\par }".
std::string ExamQuestionRtf(const SessionState& state, int position);

// The question with its explanation below the rule line of long dashes.
std::string ExamExplainedRtf(const SessionState& state, int position);

} // namespace tessera
