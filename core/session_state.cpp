#include "core/session_state.h"

namespace tessera {

void FillCatalogue(SessionState& state) {
    CourseCatalogue& c = state.catalogue;
    c.CrLf = "\r\n";
    c.FirstTitleLine = "REAL ESTATE SALESPERSON TESSERA";
    c.SecondTitleLine = "EXAM PREPARATION";
    c.EditionLine = "Third Edition";
    c.PublisherLine = "Orlanda Academy presents...";
    c.AuthorLine = "";
    c.ProgressFileName = "TesseraConfig.MS";
    c.NoteBookFileName = "TesseraNoteBook.RTF";
    c.RunningMarkerName = "TesseraAppRunning";
    c.ContentFileName = "Tessera";

    state.ExamItemCount = DefaultExamLength;
    state.ExamMinutes = DefaultExamMinutes;
    state.ExamKind = 1;
    state.CurrentTopic = 1;
    state.ExamScrambled = true;

    c.TopicTitles = {"",
                     "Definitions",
                     "Preliminary Evaluation",
                     "Real Property and Laws Relating to Ownership",
                     "Transfer of Real Property",
                     "Financing Real Estate",
                     "Valuation/Appraisal of Real Property",
                     "Real Estate Practice",
                     "Tax Implications of Real Estate Ownership",
                     "Brokerage: Responsibilities and Functions of Salespersons"};
    c.TestTypeNames = {
        "", "All Items", "Retake All Items", "Retake Missed Items", "Retake Wild Guesses", ""};
    c.ExamNames = {"",
                   "Screening Exam I",
                   "Screening Exam II",
                   "Custom Built",
                   "Retake All Items",
                   "Retake Missed Items",
                   "Retake Unsure Items"};
    c.PictureItems = {"", "06008,0263,0232", "09075,0248,0196"};
    c.TextSectionCaptions = {"",
                             "&Topics and Highlights",
                             "&How to Take the State Exam",
                             "About O&rlanda Academy",
                             "&About This Software",
                             "How to &Enroll",
                             "&Review Tests Discussion",
                             "&Screening Exams Discussion"};
    for (int t = 1; t <= TopicCount; ++t)
        state.ExamTopics[t] = true;
}

int RunningItemNumber(const CourseContent& content, int topic, int ordinal) {
    int number = ordinal;
    for (int u = 1; u < topic && u <= TopicCount; ++u)
        number += content.ItemCounts[u][1];
    return number;
}

} // namespace tessera
