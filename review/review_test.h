#pragma once
// The rules of a review test as a whole: building it, ending it, counting the drill, closing it.

#include "core/session_state.h"

#include <cstdint>
#include <span>
#include <string>

namespace tessera {

class Random;

// TestType values.
enum ReviewTestType : int16_t {
    AllItemsTest = 1,
    RetakeAllTest = 2,
    RetakeMissedTest = 3,
    RetakeWildGuessesTest = 4,
};

// The heading of Label2 on Quiz800, by TestType.
std::string TestHeading(int testType);

// Wishes of each kind: a new All Items test gets one more than a retake of the same size.
int AllItemsWishStock(int itemCount);
int RetakeWishStock(int itemCount);

// One pass of random exchanges over TestItems(1..TestItemCount); r may equal i.
void ScrambleTestItems(SessionState& state, Random& random);

// A new All Items test of CurrentTopic, scrambled when ScrambleQuestions is on; the random
// source is seeded here from the time of day and nowhere else in a review test.
void BuildAllItemsTest(SessionState& state, Random& random, double secondsSinceMidnight);

// The "Include" choice of the report card.
enum class RetakeChoice { AllQuestions, MissedQuestions, WildGuesses };

// A retake of a stored test: its items (positions 1..n at index 0..n-1) and wrong tries.
void BuildRetake(SessionState& state, int topic, std::span<const int16_t> items,
                 std::span<const int16_t> misses, RetakeChoice choice);

// Percent tests compare the Single product of the share and 100; a value equal passes.
bool PassesGrade(float score, int passingGrade);

// A finished first-time run counts as a drill at the lower of 70 and the grade.
bool DrillCounts(float score, int passingGrade);

// Only an All Items test is logged, and only while fewer than three drills have counted.
bool LogsDrill(int testType, int takeCount);

// Positions whose TestMisses is not 0.
int MissedPositions(const SessionState& state);

// The two lines of the "Finished" box.
std::string FinishedMessageText(bool passed, int missed, const std::string& crLf);

// What closing Quiz800 does with the test.
struct UnloadPlan {
    bool save = false; // false: the test is dropped, nothing written
    int16_t position = 0;
    int16_t furthest = 0;
};

// cancelCaption: Command1(7) reads "&Cancel"; answered: Command1(6) is enabled.
UnloadPlan PlanUnload(bool cancelCaption, bool answered, int testFurthest);

} // namespace tessera
