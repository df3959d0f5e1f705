// QuizSumm's own labels and the design of its window: the heads over the rows' columns and the
// captions of its options and commands.

#include "core/progress_file.h"
#include "platform/control_names.h"
#include "review/quiz_summ.h"

#include <QLabel>

namespace tessera {

QuizSumm::Labels QuizSumm::MakeLabels() {
    const std::array<const char*, 8> heads = {
        "Test Type",    "Date Taken",  "Percent Correct", "Questions Asked",
        "Wild Guesses", "Tries Ratio", "Scrambled Order", "Time Used (h:m:s)"};
    Labels labels{};
    for (int i = 0; i < 8; ++i) {
        labels.heads[static_cast<size_t>(i)] = new QLabel;
        NameControl(labels.heads[static_cast<size_t>(i)], "Label1", i,
                    QString::fromLatin1(heads[static_cast<size_t>(i)]));
    }
    labels.totals = new QLabel(QStringLiteral("Total:"));
    NameControl(labels.totals, QStringLiteral("Label2"), QStringLiteral("Totals"));
    labels.topic = new QLabel(QStringLiteral("Topic Number:"));
    NameControl(labels.topic, QStringLiteral("Label3"),
                QStringLiteral("Topic of the selected test"));
    labels.note = new QLabel(
        QStringLiteral("Note: You may take three complete drills of any topic review test."));
    NameControl(labels.note, QStringLiteral("Label4"), labels.note->text());
    return labels;
}

QuizSumm::QuizSumm(ScreenContext& context) : QuizSumm(context, MakeLabels()) {}

QuizSumm::QuizSumm(ScreenContext& context, Labels labels)
    : ReportCard(context,
                 {ScreenName::QuizSumm,
                  "Review Test Scoring Report Card",
                  {{0, "", 0, "Test Type"},
                   {21, "Date", 20, "Taken"},
                   {26, "Percent", 26, "Correct"},
                   {34, "Questions", 35, "Asked"},
                   {45, "Wild", 42, "Guesses"},
                   {54, "Tries", 54, "Ratio"},
                   {60, "Scrambled", 62, "Order"},
                   {70, "Time Used", 72, "(h:m:s)"}},
                  80,
                  15,
                  {QStringLiteral("Earliest Date Taken"), QStringLiteral("Latest Date Taken"),
                   QStringLiteral("Percent Correct"), QStringLiteral("Topic Sequence"),
                   QStringLiteral("Percent Wild Guesses")},
                  {QStringLiteral("All Questions"), QStringLiteral("Missed Questions"),
                   QStringLiteral("Wild Guesses")},
                  {QStringLiteral("&Print"), QStringLiteral("&Erase Test"), QStringLiteral("&Done"),
                   QStringLiteral("&Help"), QStringLiteral("&Retake")},
                  {0, 1, 2, 3, 4},
                  {0, 1, 4},
                  "Data Erased!",
                  HelpTopic::QuizSumm,
                  ScreenName::Quiz800,
                  false},
                 {labels.heads.begin(), labels.heads.end()}, labels.totals, labels.topic,
                 {labels.note}),
      Label1(labels.heads), Label2(labels.totals), Label3(labels.topic) {
    setObjectName(QStringLiteral("QuizSumm"));
    resize(760, 520);
    m_rows = LoadCardRows(ReadReviewTestRecords());
    showLoadedRows();
}

} // namespace tessera
