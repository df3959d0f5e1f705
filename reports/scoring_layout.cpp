// Scoring's own labels and the design of its window: the heads over the rows' 83 columns, the
// captions of its options and commands, and the order in which the commands stand.

#include "core/progress_file.h"
#include "platform/control_names.h"
#include "reports/scoring.h"
#include "reports/scoring_print.h"

#include <QLabel>

namespace tessera {

namespace {

const std::array<const char*, 12> Captions = {
    "Date Taken",
    "Percent Correct",
    "Questions Asked",
    "Number Answered",
    "Unsure Answers",
    "Scrambled Order",
    "Allotted Time (min.)",
    "Time Used (h:m:s)",
    "Topics Covered: ",
    "Note: The list includes only exams with at least 30% answered correctly, and you may take "
    "three complete drills of any screening exam.",
    "Total:",
    "Exam Title"};

std::array<QLabel*, 12> MakeLabels() {
    std::array<QLabel*, 12> labels{};
    for (int i = 0; i < 12; ++i) {
        const QString caption = QString::fromLatin1(Captions[static_cast<size_t>(i)]);
        labels[static_cast<size_t>(i)] = new QLabel(caption);
        NameControl(labels[static_cast<size_t>(i)], "Label1", i, caption.trimmed());
    }
    return labels;
}

} // namespace

Scoring::Scoring(ScreenContext& context) : Scoring(context, MakeLabels()) {}

Scoring::Scoring(ScreenContext& context, std::array<QLabel*, 12> labels)
    : ReportCard(context,
                 {ScreenName::Scoring,
                  ScoringCaption,
                  // Label1(0) to (7), then Label1(11).
                  {{16, "Date", 16, "Taken"},
                   {23, "Percent", 23, "Correct"},
                   {31, "Questions", 32, "Asked"},
                   {41, "Number", 38, "Answered"},
                   {49, "Unsure", 48, "Answers"},
                   {56, "Scrambled", 58, "Order"},
                   {66, "Allotted", 64, "Time (min.)"},
                   {75, "Time Used", 76, "(h:m:s)"},
                   {0, "", 0, "Exam Title"}},
                  84,
                  13,
                  {QStringLiteral("Earliest Date Taken"), QStringLiteral("Latest Date Taken"),
                   QStringLiteral("Percent Correct"), QStringLiteral("Questions Asked"),
                   QStringLiteral("Percent Unsure")},
                  {QStringLiteral("All Questions"), QStringLiteral("Missed Questions"),
                   QStringLiteral("Unsure Questions")},
                  {QStringLiteral("&Print"), QStringLiteral("&Erase Exam"), QStringLiteral("&Done"),
                   QStringLiteral("&Help"), QStringLiteral("&Retake Exam"),
                   QStringLiteral("&View Results")},
                  // From the top: what a selected row leads to, the card as a whole, leaving.
                  {5, 4, 1, 0, 3, 2},
                  {0, 1, 4, 5},
                  "Exam Data Erased!",
                  HelpTopic::Scoring,
                  ScreenName::ExamTest,
                  true},
                 {labels[0], labels[1], labels[2], labels[3], labels[4], labels[5], labels[6],
                  labels[7], labels[11]},
                 labels[10], labels[8], {labels[9]}),
      Label1(labels) {
    setObjectName(QStringLiteral("Scoring"));
    resize(780, 540);
    m_rows = LoadScoringRows(ReadExamRecords());
    showLoadedRows();
}

} // namespace tessera
