#pragma once
// The one set of shared variables through which all screens meet, plus the record buffers.

#include "core/course_catalogue.h"
#include "core/course_content.h"
#include "core/date_value.h"
#include "core/records.h"

#include <array>
#include <cstdint>
#include <string>
#include <variant>

namespace tessera {

// What the calculator keeps from one opening to the next within a run: its memory and operands.
struct CalculatorKept {
    double MemoryValue = 0;
    std::variant<std::string, double> FirstOperand = 0.0; // text when copied, float when computed
    std::string SecondOperand = "0";
};

// DateValue: see core/date_value.h

struct SessionState {
    CourseCatalogue catalogue;
    CourseContent content;

    // Files and shared text
    std::string UserName; // padded with blanks to 30 characters
    std::string PrintFontName;
    bool PrinterProblem = false;

    // Options, saved in the progress header
    bool ScrambleQuestions = false;
    bool SoundOn = false;
    bool TimerActive = false;
    bool IncludeProgressReport = false;
    int PassingGrade = 0; // percent, 0..100

    // Progress
    std::array<int16_t, TakeCounterCount + 1> TakeCounts{};
    int16_t SuspendedTestRecord = 0;
    int16_t SuspendedExamRecord = 0;

    // The review test in progress
    int16_t CurrentTopic = 1;
    int16_t TestType = 0;
    int16_t TestItemCount = 0;
    int16_t TestPosition = 0;
    int16_t TestFurthest = 0;
    std::array<int16_t, ExamItemLimit + 1> TestItems{};
    std::array<int16_t, ExamItemLimit + 1> TestMisses{};
    std::array<int16_t, 5> TestTally{};
    float TestScore = 0;
    DateValue TestElapsed = 0;
    std::array<int16_t, 4> WishesLeft{};
    int16_t ActiveWish = 0;

    // The screening exam in progress
    int16_t ExamKind = 1;
    int16_t ExamType = 0;
    int16_t ExamItemCount = DefaultExamLength;
    int16_t ExamMinutes = DefaultExamMinutes;
    int16_t ExamMinutesLeft = 0;
    int16_t ExamPosition = 0;
    bool ExamScrambled = true;
    int16_t ExamStructured = 0;
    std::array<bool, TopicCount + 1> ExamTopics{};
    std::array<int16_t, ReviewItemLimit + 1> ExamPool{};
    std::array<int16_t, ReviewItemLimit + 1> ExamItems{}; // holds 0..300, a fresh draw up to 796
    std::array<int16_t, ExamItemLimit + 1> ExamAnswered{};
    std::array<int16_t, ExamItemLimit + 1> ExamAnswers{};
    std::array<int16_t, ExamItemLimit + 1> ExamKey{};
    std::array<int16_t, ExamItemLimit + 1> ExamUnsure{};
    std::array<int16_t, ExamItemLimit + 1> ExamAnswerCounts{};
    DateValue ExamElapsed = 0;
    float ExamScore = 0;

    // Windows and screens
    std::array<int16_t, WindowSlotCount + 1> WindowLeft{};
    std::array<int16_t, WindowSlotCount + 1> WindowTop{};
    int16_t HelpTopic = 1;
    int16_t ViewerSection = 1;
    bool NoteBookChanged = false;
    int CursorPosition = 0; // the notebook's, where it stood when the notebook was last closed
    CalculatorKept Calculator;

    // ProgressHeader, ReviewTestRecord and ExamRecord: scratch buffers of the file operations.
    RecordBuffers Buffers;
};

// Start-up's first step: CrLf, the captions, file names, defaults and the catalogue, in that order.
void FillCatalogue(SessionState& state);

// Number of the running item: item j of topic t.
int RunningItemNumber(const CourseContent& content, int topic, int ordinal);

} // namespace tessera
