#pragma once
// The fixed tables of the one course: titles, names, sizes. Filled in code, never from a file.

#include <array>
#include <string>

namespace tessera {

// Counts the whole system is sized by.
inline constexpr int TopicCount = 9;
inline constexpr int TextSectionCount = 7;
inline constexpr int HelpTextCount = 17;
inline constexpr int ReviewItemLimit = 796;
inline constexpr int ExamItemLimit = 300;
inline constexpr int GlossaryEntryCount = 1181;
inline constexpr int SectionMarkCount = 11;
inline constexpr int LogSlotCount = 36;
inline constexpr int TakeCounterCount = 12;
inline constexpr int WindowSlotCount = 15;
inline constexpr int DefaultExamLength = 150;
inline constexpr int DefaultExamMinutes = 195;
inline constexpr int PictureItemCount = 2;

// Window slots: each screen's place in WindowLeft and WindowTop.
enum WindowSlot : int {
    AlarmFormSlot = 1,
    CalculatorSlot = 2,
    ExamTestSlot = 3,
    ExamSetSlot = 4,
    HelpSlot = 5,
    NavigatorSlot = 7,
    NoteBookSlot = 8,
    PreferencesSlot = 9,
    PictFormSlot = 10,
    Quiz800Slot = 11,
    QuizSummSlot = 12,
    ResultsSlot = 13,
    ScoringSlot = 14,
    ViewingSlot = 15,
};

// Arrays count from 1; entry 0 holds nothing.
struct CourseCatalogue {
    std::string CrLf;
    std::string FirstTitleLine;
    std::string SecondTitleLine;
    std::string EditionLine;
    std::string PublisherLine;
    std::string AuthorLine;
    std::string ProgressFileName;
    std::string NoteBookFileName;
    std::string RunningMarkerName;
    std::string ContentFileName;
    std::array<std::string, TopicCount + 1> TopicTitles;
    std::array<std::string, 6> TestTypeNames; // declared 0..5, entries 1..4 used
    std::array<std::string, 7> ExamNames;
    std::array<std::string, PictureItemCount + 1> PictureItems;
    std::array<std::string, TextSectionCount + 1> TextSectionCaptions;
};

// A picture entry of the form TTNNN,WWWW,HHHH read into its parts.
struct PictureEntry {
    std::string key; // topic in two digits, ordinal in three
    int width = 0;
    int height = 0;
    std::string fileName() const { return "Tessera" + key + ".gph"; }
};

PictureEntry parsePictureEntry(const std::string& entry);

} // namespace tessera
