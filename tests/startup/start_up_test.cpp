// Start-up paths answered by script, and what each leaves in the study folder, backups too.

#include "core/new_notebook.h"
#include "core/progress_backups.h"
#include "core/progress_file.h"
#include "core/records.h"
#include "core/run_journal.h"
#include "core/start_up.h"
#include "tests/support/study_folder.h"
#include "tests/support/test_services.h"

#include <gtest/gtest.h>

using namespace tessera;

namespace {

const std::string Marker = "TesseraAppRunning";
const std::string NoteBook = "TesseraNoteBook.RTF";
const std::string Progress = "TesseraConfig.MS";
const std::string PatDoe = "Pat Doe" + std::string(23, ' ');

// The header of an earlier run's progress file, with one log entry when a code is given.
std::string HeaderFile(int passingGrade = 75, int logCode = 0) {
    ProgressHeader header;
    header.UserName = PatDoe;
    header.PassingGrade = static_cast<uint8_t>(passingGrade);
    header.TakeCounts[4] = 2;
    if (logCode != 0) {
        header.LogDates[1] = "11-18-2026";
        header.LogCodes[1] = static_cast<uint8_t>(logCode);
    }
    const RecordBytes bytes = EncodeHeader(header);
    return {bytes.begin(), bytes.end()};
}

std::vector<std::string> BackupsIn(const StudyFolder& folder) {
    std::vector<std::string> names;
    std::error_code absent;
    for (const auto& entry : std::filesystem::directory_iterator(folder.path() / "Backups", absent))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

struct Told {
    MessageIcon icon;
    MessageButtons buttons;
    QString title;
    QString text;
    bool operator==(const Told&) const = default;
};

void PrintTo(const Told& told, std::ostream* out) {
    *out << told.title.toStdString() << ": " << told.text.toStdString();
}

class StartUpTest : public testing::Test {
protected:
    StartUpTest() { folder.write("Tessera", "{\\rtf1 no course here}\r\n"); }

    StartUpOutcome start() {
        state = SessionState{};
        return StartUp(state, doubles.services).run();
    }
    std::vector<Told> told() const {
        std::vector<Told> shown;
        for (const ShownMessage& m : doubles.dialogs.messages())
            shown.push_back({m.icon, m.buttons, m.title, m.text});
        return shown;
    }

    StudyFolder folder;
    TestServices doubles;
    SessionState state;
};

const QString Running =
    QStringLiteral("It is possible that this application is already running on this computer.\r\n"
                   "A previous system lockup or power loss could also cause this warning.\r\n"
                   "If the application is indeed running, results may be unpredictable if you "
                   "continue.\r\nPress OK to continue. Cancel to abort.");
const Told RunningWarning{MessageIcon::Exclamation, MessageButtons::OkCancel,
                          QStringLiteral("Warning!"), Running};
const Told ExitProgram{MessageIcon::Question, MessageButtons::YesNo, QStringLiteral("Tessera"),
                       QStringLiteral("Exit Program?")};

Told Confirm(const QString& name) {
    return {MessageIcon::Question, MessageButtons::YesNo, QStringLiteral("Please Confirm."),
            QStringLiteral("Thank you.\r\nSoftware user's name is ") + name + QLatin1Char('.')};
}

const QString LongName = QStringLiteral("Alexandra Konstantinopoulou-Whitfield");

// What a start finds in the folder, and what it leaves there.
enum Found { Content = 1, Earlier = 2, AnotherRun = 4, Printer = 8, Usual = Content | Printer };
enum Left { Nothing = 0, MarkerLeft = 1, NoteBookLeft = 2 };

// One start from what the folder holds and what the user answers. Only a name taken writes
// the progress file; a marker found is neither rewritten nor removed.
struct StartCase {
    const char* name;
    int found;
    std::vector<QString> typed; // an empty text cancels
    std::vector<MessageAnswer> answers;
    StartUpOutcome outcome;
    std::vector<Told> told;
    int left;
    std::string userName = PatDoe; // when ready
};

class StartPaths : public StartUpTest, public testing::WithParamInterface<StartCase> {};

TEST_P(StartPaths, TellExactlyAndLeaveTheFolderAsTheyShould) {
    const StartCase& c = GetParam();
    if ((c.found & Content) == 0)
        std::filesystem::remove(folder.path() / "Tessera");
    const std::string progress = c.found & Earlier ? HeaderFile() : "";
    if (!progress.empty())
        folder.write(Progress, progress);
    if (c.found & AnotherRun)
        folder.write(Marker, "another run");
    if ((c.found & Printer) == 0)
        doubles.printer.fonts.reset();
    for (const QString& text : c.typed)
        doubles.dialogs.type(text);
    for (const MessageAnswer answer : c.answers)
        doubles.dialogs.answer(answer);

    EXPECT_EQ(start(), c.outcome);
    EXPECT_EQ(told(), c.told);
    EXPECT_EQ(doubles.dialogs.inputs().size(), c.typed.size());
    EXPECT_EQ(folder.exists(Marker), (c.left & MarkerLeft) != 0);
    if (c.found & AnotherRun) {
        EXPECT_EQ(folder.read(Marker), "another run");
    }
    EXPECT_EQ(folder.exists(NoteBook), (c.left & NoteBookLeft) != 0);
    const bool named = c.outcome == StartUpOutcome::Ready && !c.typed.empty();
    if (!named) {
        EXPECT_EQ(folder.exists(Progress) ? folder.read(Progress) : "", progress);
    }
    if (c.outcome == StartUpOutcome::Ready) {
        EXPECT_EQ(state.UserName, c.userName);
        EXPECT_EQ(state.PassingGrade, named ? 70 : 75);
        EXPECT_EQ(state.PrinterProblem, (c.found & Printer) == 0);
        EXPECT_EQ(state.PrintFontName, c.found & Printer ? "Courier New" : "");
    }
}

using enum StartUpOutcome;
using enum MessageAnswer;

INSTANTIATE_TEST_SUITE_P(
    Cases, StartPaths,
    testing::Values(
        StartCase("MissingContentFileEndsAtOnce", AnotherRun | Printer, {}, {}, Ended,
                  {{MessageIcon::Critical, MessageButtons::Ok,
                    QStringLiteral("Missing File Detected!"),
                    QStringLiteral("Fatal Error. This Software must be reinstalled.")}},
                  MarkerLeft),
        StartCase("RunningMarkerCancelled", Usual | Earlier | AnotherRun, {}, {Cancel}, Ended,
                  {RunningWarning}, MarkerLeft),
        StartCase("RunningMarkerAnsweredOk", Usual | Earlier | AnotherRun, {}, {Ok}, Ready,
                  {RunningWarning}, MarkerLeft),
        StartCase("LaterStartMakesNoNotebook", Usual | Earlier, {}, {}, Ready, {}, MarkerLeft),
        StartCase("NoPrinterIsToldOnceAndStartUpGoesOn", Content | Earlier, {}, {}, Ready,
                  {{MessageIcon::Critical, MessageButtons::Ok, QStringLiteral("Printer error"),
                    QStringLiteral("There is a problem that will prevent printing. Most likely "
                                   "cause is that\r\nyou have not selected a printer from the "
                                   "Windows Control Panel.\r\nOpen the Control Panel, "
                                   "double-click the Printers icon, and choose Add to install a "
                                   "printer.")}},
                  MarkerLeft),
        StartCase("FirstRunTrimsTheName", Usual, {QStringLiteral("   Pat Doe")}, {Yes}, Ready,
                  {Confirm(QStringLiteral("Pat Doe"))}, MarkerLeft | NoteBookLeft),
        StartCase("BlanksAskAgainAndALongNameIsCutToThirty", Usual,
                  {QStringLiteral("     "), LongName}, {Yes}, Ready, {Confirm(LongName.left(30))},
                  MarkerLeft | NoteBookLeft, LongName.left(30).toStdString()),
        StartCase("NoOrANameOutsideTheCodePageAsksAgain", Usual,
                  {QStringLiteral("Pat Dough"), QStringLiteral("Pat \u0141ukasz"),
                   QStringLiteral("Pat Doe")},
                  {No, Ok, Yes}, Ready,
                  {Confirm(QStringLiteral("Pat Dough")),
                   {MessageIcon::Exclamation, MessageButtons::Ok,
                    QStringLiteral("Software User's Name"),
                    QStringLiteral("The name can use only letters, figures and signs of "
                                   "Western European languages. Please type it again.")},
                   Confirm(QStringLiteral("Pat Doe"))},
                  MarkerLeft | NoteBookLeft),
        StartCase("CancelThenExitLeavesAFirstRun", Usual, {QString(), QString()}, {No, Yes}, Ended,
                  {ExitProgram, ExitProgram}, Nothing)),
    [](const testing::TestParamInfo<StartCase>& info) { return info.param.name; });

TEST_F(StartUpTest, FirstRunWritesTheHeaderOverZerosAndTheNotebook) {
    std::string zeros(RecordSize, '\0');
    zeros[700] = 'R'; // the log and reserved bytes pass through
    folder.write(Progress, zeros);
    doubles.dialogs.type(QStringLiteral("Pat Doe"));
    doubles.dialogs.answer(MessageAnswer::Yes);

    EXPECT_EQ(start(), StartUpOutcome::Ready);
    EXPECT_EQ(folder.read(Progress),
              std::string("\x01\x01\x01\x01\x46\x00\x00", 7) + PatDoe + zeros.substr(37));
    EXPECT_TRUE(state.ScrambleQuestions && state.SoundOn && state.TimerActive);

    std::string expected = "{\\rtf1\\ansi\\deff0\\deflang1033{\\fonttbl{\\f0\\fswiss Arial;}}\r\n"
                           "\\viewkind4\\uc1\\pard\\b\\f0\\fs23 \r\n"
                           "\\b\\qc Review Notes for the\r\n"
                           "\\par Orlanda Academy Salesperson Tessera\r\n"
                           "\\par EXAM PREPARATION\r\n"
                           "\\par \\pard\\plain Notebook prepared by Pat Doe\r\n"
                           "\\par \r\n";
    for (const char* title :
         {"Definitions", "Preliminary Evaluation", "Real Property and Laws Relating to Ownership",
          "Transfer of Real Property", "Financing Real Estate",
          "Valuation/Appraisal of Real Property", "Real Estate Practice",
          "Tax Implications of Real Estate Ownership",
          "Brokerage: Responsibilities and Functions of Salespersons"})
        expected += std::string("\\par ") + title + "\r\n\\par Notes:\r\n" +
                    "\\par \r\n\\par \r\n\\par \r\n\\par \r\n";
    expected += "\\par }\r\n";
    EXPECT_EQ(folder.read(NoteBook), expected);
    EXPECT_EQ(RtfEscaped("Pat {Doe}\\ \xe9"), "Pat \\{Doe\\}\\\\ \\'e9");
}

TEST_F(StartUpTest, RestartRestoresTheSuspendedTestAndExam) {
    ProgressHeader header;
    header.UserName = PatDoe;
    header.SuspendedTestRecord = 2;
    header.SuspendedExamRecord = 3;
    ReviewTestRecord review;
    review.Topic = 3;
    review.Position = 4;
    review.Furthest = 5;
    review.ItemCount = 6;
    review.TestType = 3;
    review.Items[4] = 212;
    ExamRecord exam;
    exam.Kind = 11;
    exam.ExamType = 2;
    exam.Position = 17;
    exam.ItemCount = 150;
    exam.Items[17] = 160;
    std::string file;
    for (const RecordBytes& bytes :
         {EncodeHeader(header), EncodeReviewTest(review), EncodeExam(exam)})
        file.append(bytes.begin(), bytes.end());
    folder.write(Progress, file);

    EXPECT_EQ(start(), StartUpOutcome::Ready);
    EXPECT_EQ(
        std::tuple(state.CurrentTopic, state.TestPosition, state.TestType, state.TestItems[4]),
        std::tuple(3, 4, 3, 212));
    EXPECT_EQ(std::tuple(state.ExamKind, state.ExamPosition, state.ExamItems[17]),
              std::tuple(2, 17, 160));
    EXPECT_EQ(folder.read(Progress), file) << "restoring reads and writes nothing";
}

TEST_F(StartUpTest, FolderThatCannotBeWrittenGivesUpAfterAFewTries) {
    // A folder in the notebook's place: writing it fails however often it is tried.
    std::filesystem::create_directory(folder.path() / NoteBook);
    doubles.dialogs.type(QStringLiteral("Pat Doe"));
    doubles.dialogs.answer(MessageAnswer::Yes);

    EXPECT_EQ(start(), StartUpOutcome::Ended);
    const QString error = QStringLiteral("Path/File access error");
    const std::vector<Told> expected = {
        Confirm(QStringLiteral("Pat Doe")),
        {MessageIcon::Critical, MessageButtons::Ok, error,
         QStringLiteral("Unrecoverable error 75 has occurred.")},
        {MessageIcon::Critical, MessageButtons::Ok, error,
         QStringLiteral("The program cannot start: path/file access error in the study folder. "
                        "Make sure that the folder may be written to and has room, then start "
                        "the program again.")}};
    EXPECT_EQ(told(), expected) << "the error once, then the closing message";
    EXPECT_FALSE(folder.exists(Marker)) << "this run made the marker and takes it away";
}

TEST(PrintFont, TheLastOfTheFourFoundInTheJoinedNamesWins) {
    const std::vector<std::pair<QStringList, std::string>> cases = {
        {{QStringLiteral("Arial"), QStringLiteral("Times New Roman")}, ""},
        {{QStringLiteral("Courier New"), QStringLiteral("Terminal")}, "Courier New"},
        {{QStringLiteral("Courier"), QStringLiteral("MS LineDraw")}, "Courier"},
        {{QStringLiteral("Terminal"), QStringLiteral("MS LineDraw")}, "MS LineDraw"},
    };
    for (const auto& [fonts, expected] : cases)
        EXPECT_EQ(ChoosePrintFontName(fonts), expected)
            << fonts.join(QLatin1Char(',')).toStdString();
}

// Backups: when they are taken, how many stay, and the offer of the newest good one when
// the progress file is damaged.
TEST_F(StartUpTest, FirstStartOfADayAndEveryRewriteKeepTheNewestTen) {
    folder.write(Progress, HeaderFile(70, 1));
    ASSERT_EQ(start(), StartUpOutcome::Ready);
    doubles.dialogs.answer(MessageAnswer::Ok); // to the marker the first start left
    doubles.clock.advanceSeconds(3600);
    ASSERT_EQ(start(), StartUpOutcome::Ready); // the same day: no second backup
    EXPECT_EQ(BackupsIn(folder), std::vector<std::string>{"TesseraConfig 2026-11-19 09-00-00.MS"});
    EXPECT_EQ(folder.read("Backups/TesseraConfig 2026-11-19 09-00-00.MS"), HeaderFile(70, 1));

    for (int minute = 1; minute <= 11; ++minute) {
        doubles.clock.setDateTime(2026, 11, 20, 8, minute, 0);
        ASSERT_EQ(RewriteProgressFile(state, std::vector<ExamRecord>{}, doubles.clock.now()),
                  SaveStatus::Saved);
    }
    const std::vector<std::string> kept = BackupsIn(folder);
    ASSERT_EQ(kept.size(), size_t{10});
    EXPECT_EQ(kept.front(), "TesseraConfig 2026-11-20 08-02-00.MS");
    EXPECT_EQ(kept.back(), "TesseraConfig 2026-11-20 08-11-00.MS");
}

struct DamagedCase {
    const char* name;
    std::string progress;
    std::vector<std::pair<const char*, std::string>> backups; // oldest first
    MessageAnswer answer;
    std::string text;     // of the one message
    std::string restored; // the progress file afterwards; empty: left as it was
};

class DamagedFileTest : public StartUpTest, public testing::WithParamInterface<DamagedCase> {};

TEST_P(DamagedFileTest, SaysSoAndOffersTheNewestGoodBackup) {
    const DamagedCase& c = GetParam();
    folder.write(Progress, c.progress);
    std::filesystem::create_directory(folder.path() / "Backups");
    for (const auto& [stamp, bytes] : c.backups)
        folder.write(std::string("Backups/TesseraConfig ") + stamp + ".MS", bytes);
    const std::vector<std::string> before = BackupsIn(folder);
    doubles.dialogs.answer(c.answer);

    ASSERT_EQ(start(), StartUpOutcome::Ready);
    ASSERT_EQ(doubles.dialogs.messages().size(), size_t{1});
    const ShownMessage& told = doubles.dialogs.messages().front();
    EXPECT_EQ(told.title, QStringLiteral("Damaged File Detected!"));
    EXPECT_EQ(told.icon, MessageIcon::Exclamation);
    EXPECT_EQ(told.text.toStdString(), c.text);
    EXPECT_EQ(folder.read(Progress), c.restored.empty() ? c.progress : c.restored);
    if (c.restored.empty()) {
        EXPECT_EQ(BackupsIn(folder), before) << "no backup is taken of a damaged file";
    }
}

const std::string Damaged = "Your progress file TesseraConfig.MS is damaged.\r\n";
const std::string Offer = "Press Yes to restore it. No to keep the damaged file.";

INSTANTIATE_TEST_SUITE_P(
    Cases, DamagedFileTest,
    testing::Values(
        DamagedCase("OddLengthRestored", HeaderFile(70) + "cut",
                    {{"2026-11-17 10-00-00", HeaderFile(60)},
                     {"2026-11-18 10-00-00", HeaderFile(65)}},
                    MessageAnswer::Yes,
                    Damaged +
                        "The newest good backup is Backups/TesseraConfig 2026-11-18 "
                        "10-00-00.MS.\r\n" +
                        Offer,
                    HeaderFile(65)),
        DamagedCase("ImpossibleLogDeclined", HeaderFile(70, 40),
                    {{"2026-11-17 10-00-00", HeaderFile(60)}, {"2026-11-18 10-00-00", "cut"}},
                    MessageAnswer::No,
                    Damaged +
                        "The newest good backup is Backups/TesseraConfig 2026-11-17 "
                        "10-00-00.MS.\r\n" +
                        Offer,
                    ""),
        DamagedCase("GradeOverAHundredWithoutBackups", HeaderFile(170), {}, MessageAnswer::Ok,
                    Damaged + "No good backup of it was found in the Backups folder. The "
                              "program will use what it can read.",
                    "")),
    [](const testing::TestParamInfo<DamagedCase>& info) { return info.param.name; });

TEST_F(StartUpTest, AJournalLeftByACrashIsReplayedAndSaidSo) {
    folder.write(Progress, HeaderFile());
    SessionState running;
    running.CurrentTopic = 2;
    running.TestType = 1;
    running.TestItemCount = 2;
    running.TestItems = {0, 3, 4};
    running.TestPosition = 2;
    ASSERT_TRUE(JournalReviewTest(running, doubles.clock.now()));

    EXPECT_EQ(start(), StartUpOutcome::Ready);
    EXPECT_EQ(told(),
              (std::vector<Told>{
                  {MessageIcon::Information, MessageButtons::Ok, QStringLiteral("Test Recovered!"),
                   QStringLiteral("The program stopped during a review test and did "
                                  "not save it.\r\nYour answers up to the last one were "
                                  "kept. Resume the test from the Navigation Screen.")}}));
    EXPECT_EQ(state.TestPosition, 2);
    EXPECT_EQ(ReadProgressHeader().SuspendedTestRecord, 2);
    EXPECT_FALSE(folder.exists(JournalFile));
}

} // namespace
