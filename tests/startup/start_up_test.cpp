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

std::string HeaderFile(int passingGrade, int logCode = 0) {
    ProgressHeader header;
    header.UserName = std::string("Pat Doe").append(23, ' ');
    header.PassingGrade = static_cast<uint8_t>(passingGrade);
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

class StartUpTest : public testing::Test {
protected:
    StartUpTest() { folder.write("Tessera", "{\\rtf1 no course here}\r\n"); }

    StartUpOutcome start() {
        state = SessionState{};
        return StartUp(state, doubles.services).run();
    }
    // A progress file of an earlier run: only its header, with the user's name.
    void writeEarlierRun(const std::string& name) {
        ProgressHeader header;
        header.UserName = name + std::string(UserNameLength - name.size(), ' ');
        header.PassingGrade = 75;
        header.TakeCounts[4] = 2;
        const RecordBytes bytes = EncodeHeader(header);
        folder.write(Progress, std::string(bytes.begin(), bytes.end()));
    }
    std::vector<QString> texts() const {
        std::vector<QString> shown;
        for (const ShownMessage& message : doubles.dialogs.messages())
            shown.push_back(message.text);
        return shown;
    }

    StudyFolder folder;
    TestServices doubles;
    SessionState state;
};

TEST_F(StartUpTest, MissingContentFileEndsAtOnceAndLeavesTheMarkerAlone) {
    std::filesystem::remove(folder.path() / "Tessera");
    folder.write(Marker, "left by another copy");

    EXPECT_EQ(start(), StartUpOutcome::Ended);
    ASSERT_EQ(doubles.dialogs.messages().size(), 1u);
    const ShownMessage& fatal = doubles.dialogs.messages()[0];
    EXPECT_EQ(fatal.text, QStringLiteral("Fatal Error. This Software must be reinstalled."));
    EXPECT_EQ(fatal.title, QStringLiteral("Missing File Detected!"));
    EXPECT_EQ(fatal.icon, MessageIcon::Critical);
    EXPECT_EQ(folder.read(Marker), "left by another copy");
    EXPECT_FALSE(folder.exists(Progress));
}

TEST_F(StartUpTest, RunningMarkerWarnsAndCancelLeavesIt) {
    writeEarlierRun("Pat Doe");
    folder.write(Marker, "");
    doubles.dialogs.answer(MessageAnswer::Cancel);

    EXPECT_EQ(start(), StartUpOutcome::Ended);
    ASSERT_EQ(doubles.dialogs.messages().size(), 1u);
    const ShownMessage& warning = doubles.dialogs.messages()[0];
    EXPECT_EQ(warning.text,
              QStringLiteral(
                  "It is possible that this application is already running on this computer.\r\n"
                  "A previous system lockup or power loss could also cause this warning.\r\n"
                  "If the application is indeed running, results may be unpredictable if you "
                  "continue.\r\n"
                  "Press OK to continue. Cancel to abort."));
    EXPECT_EQ(warning.title, QStringLiteral("Warning!"));
    EXPECT_EQ(warning.icon, MessageIcon::Exclamation);
    EXPECT_EQ(warning.buttons, MessageButtons::OkCancel);
    EXPECT_TRUE(folder.exists(Marker));
}

TEST_F(StartUpTest, RunningMarkerAnsweredOkGoesOnWithTheStoredProgress) {
    writeEarlierRun("Pat Doe");
    folder.write(Marker, "");
    doubles.dialogs.answer(MessageAnswer::Ok);

    EXPECT_EQ(start(), StartUpOutcome::Ready);
    EXPECT_TRUE(folder.exists(Marker));
    EXPECT_EQ(state.UserName, "Pat Doe" + std::string(23, ' '));
    EXPECT_EQ(state.PassingGrade, 75);
    EXPECT_EQ(state.TakeCounts[4], 2);
    EXPECT_TRUE(doubles.dialogs.inputs().empty());
    EXPECT_EQ(doubles.dialogs.unscripted(), 0);
}

TEST_F(StartUpTest, FirstRunWritesHeaderNotebookAndMarker) {
    doubles.dialogs.type(QStringLiteral("   Pat Doe"));
    doubles.dialogs.answer(MessageAnswer::Yes);

    EXPECT_EQ(start(), StartUpOutcome::Ready);
    ASSERT_EQ(doubles.dialogs.messages().size(), 1u);
    EXPECT_EQ(doubles.dialogs.messages()[0].text,
              QStringLiteral("Thank you.\r\nSoftware user's name is Pat Doe."));
    EXPECT_EQ(doubles.dialogs.messages()[0].title, QStringLiteral("Please Confirm."));
    EXPECT_TRUE(folder.exists(Marker));

    const std::string file = folder.read(Progress);
    ASSERT_EQ(file.size(), static_cast<size_t>(RecordSize));
    EXPECT_EQ(file.substr(0, 7), std::string("\x01\x01\x01\x01\x46\x00\x00", 7));
    EXPECT_EQ(file.substr(7, 30), "Pat Doe" + std::string(23, ' '));
    EXPECT_EQ(file.substr(37, 12), std::string(12, '\0'));
    EXPECT_TRUE(state.ScrambleQuestions && state.SoundOn && state.TimerActive);
    EXPECT_EQ(state.PassingGrade, 70);

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
}

TEST_F(StartUpTest, FirstRunKeepsLogAndReservedBytesOfAFileOfZeros) {
    std::string zeros(RecordSize, '\0');
    zeros[700] = 'R'; // a reserved byte passes through
    folder.write(Progress, zeros);
    doubles.dialogs.type(QStringLiteral("Lee"));
    doubles.dialogs.answer(MessageAnswer::Yes);

    EXPECT_EQ(start(), StartUpOutcome::Ready);
    const std::string file = folder.read(Progress);
    EXPECT_EQ(file.substr(49), zeros.substr(49));
}

TEST_F(StartUpTest, NameOfBlanksAsksAgainAndLongNameIsCutToThirty) {
    const QString longName = QStringLiteral("Alexandra Konstantinopoulou-Whitfield");
    doubles.dialogs.type(QStringLiteral("     "));
    doubles.dialogs.type(longName);
    doubles.dialogs.answer(MessageAnswer::Yes);

    EXPECT_EQ(start(), StartUpOutcome::Ready);
    EXPECT_EQ(doubles.dialogs.inputs().size(), 2u);
    ASSERT_EQ(doubles.dialogs.messages().size(), 1u) << "blanks bring no Exit question";
    EXPECT_EQ(doubles.dialogs.messages()[0].text,
              QStringLiteral("Thank you.\r\nSoftware user's name is ") + longName.left(30) +
                  QLatin1Char('.'));
    EXPECT_EQ(folder.read(Progress).substr(7, 30), longName.left(30).toStdString());
}

TEST_F(StartUpTest, NoAtTheConfirmationOrANameOutsideTheCodePageAsksAgain) {
    doubles.dialogs.type(QStringLiteral("Pat Dough"));
    doubles.dialogs.answer(MessageAnswer::No);
    doubles.dialogs.type(QStringLiteral("Pat \u0141ukasz")); // an L with stroke: not in 1252
    doubles.dialogs.answer(MessageAnswer::Ok);
    doubles.dialogs.type(QStringLiteral("Pat Doe"));
    doubles.dialogs.answer(MessageAnswer::Yes);

    EXPECT_EQ(start(), StartUpOutcome::Ready);
    ASSERT_EQ(doubles.dialogs.messages().size(), 3u);
    EXPECT_TRUE(doubles.dialogs.messages()[1].text.startsWith(QStringLiteral("The name can use")));
    EXPECT_EQ(state.UserName, "Pat Doe" + std::string(23, ' '));
    EXPECT_NE(folder.read(NoteBook).find("Notebook prepared by Pat Doe\r\n"), std::string::npos);
}

TEST_F(StartUpTest, CancelThenExitEndsAndTheNextStartIsAFirstRunAgain) {
    doubles.dialogs.type(QString());           // cancel
    doubles.dialogs.answer(MessageAnswer::No); // Exit Program? No
    doubles.dialogs.type(QString());
    doubles.dialogs.answer(MessageAnswer::Yes); // Exit Program? Yes

    EXPECT_EQ(start(), StartUpOutcome::Ended);
    EXPECT_EQ(texts(), (std::vector<QString>{QStringLiteral("Exit Program?"),
                                             QStringLiteral("Exit Program?")}));
    EXPECT_FALSE(folder.exists(Marker));
    EXPECT_FALSE(folder.exists(NoteBook));
    EXPECT_TRUE(ReadProgressHeader().isFirstRun());

    doubles.dialogs.type(QStringLiteral("Pat Doe"));
    doubles.dialogs.answer(MessageAnswer::Yes);
    EXPECT_EQ(start(), StartUpOutcome::Ready);
    EXPECT_EQ(doubles.dialogs.inputs().size(), 3u);
}

TEST_F(StartUpTest, LaterStartDoesNotRecreateAMissingNotebook) {
    writeEarlierRun("Pat Doe");
    EXPECT_EQ(start(), StartUpOutcome::Ready);
    EXPECT_FALSE(folder.exists(NoteBook));
    EXPECT_TRUE(folder.exists(Marker));
}

TEST_F(StartUpTest, RestartRestoresTheSuspendedTestAndExam) {
    ProgressHeader header;
    header.UserName = "Pat Doe" + std::string(23, ' ');
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
    EXPECT_EQ(state.CurrentTopic, 3);
    EXPECT_EQ(state.TestPosition, 4);
    EXPECT_EQ(state.TestType, 3);
    EXPECT_EQ(state.TestItems[4], 212);
    EXPECT_EQ(state.ExamKind, 2);
    EXPECT_EQ(state.ExamPosition, 17);
    EXPECT_EQ(state.ExamItems[17], 160);
    EXPECT_EQ(folder.read(Progress), file) << "restoring reads and writes nothing";
}

TEST_F(StartUpTest, FolderThatCannotBeWrittenGivesUpAfterAFewTries) {
    // A folder in the notebook's place: writing it fails however often it is tried.
    std::filesystem::create_directory(folder.path() / NoteBook);
    doubles.dialogs.type(QStringLiteral("Pat Doe"));
    doubles.dialogs.answer(MessageAnswer::Yes);

    EXPECT_EQ(start(), StartUpOutcome::Ended);
    const std::vector<ShownMessage>& shown = doubles.dialogs.messages();
    ASSERT_EQ(shown.size(), 3u) << "the error once, then the closing message";
    EXPECT_EQ(shown[1].text, QStringLiteral("Unrecoverable error 75 has occurred."));
    EXPECT_EQ(shown[1].title, QStringLiteral("Path/File access error"));
    EXPECT_TRUE(shown.back().text.startsWith(QStringLiteral("The program cannot start")));
    EXPECT_FALSE(folder.exists(Marker)) << "this run made the marker and takes it away";
}

TEST_F(StartUpTest, NoPrinterIsReportedOnceAndStartUpGoesOn) {
    writeEarlierRun("Pat Doe");
    doubles.printer.fonts.reset();

    EXPECT_EQ(start(), StartUpOutcome::Ready);
    ASSERT_EQ(doubles.dialogs.messages().size(), 1u);
    EXPECT_EQ(doubles.dialogs.messages()[0].title, QStringLiteral("Printer error"));
    EXPECT_EQ(doubles.dialogs.messages()[0].text,
              QStringLiteral("There is a problem that will prevent printing. Most likely cause "
                             "is that\r\nyou have not selected a printer from the Windows Control "
                             "Panel.\r\nOpen the Control Panel, double-click the Printers icon, "
                             "and choose Add to install a printer."));
    EXPECT_TRUE(state.PrinterProblem);
    EXPECT_TRUE(state.PrintFontName.empty());
}

TEST(PrintFont, TheLastOfTheFourFoundInTheJoinedNamesWins) {
    const std::vector<std::pair<QStringList, std::string>> cases = {
        {{QStringLiteral("Arial"), QStringLiteral("Times New Roman")}, ""},
        {{QStringLiteral("Courier New"), QStringLiteral("Terminal")}, "Courier New"},
        {{QStringLiteral("Courier"), QStringLiteral("MS LineDraw")}, "Courier"},
        {{QStringLiteral("Terminal"), QStringLiteral("MS LineDraw")}, "MS LineDraw"},
        {{QStringLiteral("Courier New")}, "Courier New"},
    };
    for (const auto& [fonts, expected] : cases)
        EXPECT_EQ(ChoosePrintFontName(fonts), expected)
            << fonts.join(QLatin1Char(',')).toStdString();
}

TEST(NoteBookName, RichTextCharactersOfTheNameAreEscaped) {
    EXPECT_EQ(RtfEscaped("Pat {Doe}\\ \xe9"), "Pat \\{Doe\\}\\\\ \\'e9");
}

// Backups: when they are taken, how many stay, and the offer of the newest good one when
// the progress file is damaged.
TEST_F(StartUpTest, FirstStartOfADayAndEveryRewriteKeepTheNewestTen) {
    folder.write(Progress, HeaderFile(70, 1));
    ASSERT_EQ(start(), StartUpOutcome::Ready);
    folder.write("TesseraAppRunning", "");
    doubles.dialogs.answer(MessageAnswer::Ok);
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
        DamagedCase{
            "OddLengthRestored",
            HeaderFile(70) + "cut",
            {{"2026-11-17 10-00-00", HeaderFile(60)}, {"2026-11-18 10-00-00", HeaderFile(65)}},
            MessageAnswer::Yes,
            Damaged +
                "The newest good backup is Backups/TesseraConfig 2026-11-18 "
                "10-00-00.MS.\r\n" +
                Offer,
            HeaderFile(65)},
        DamagedCase{"ImpossibleLogDeclined",
                    HeaderFile(70, 40),
                    {{"2026-11-17 10-00-00", HeaderFile(60)}, {"2026-11-18 10-00-00", "cut"}},
                    MessageAnswer::No,
                    Damaged +
                        "The newest good backup is Backups/TesseraConfig 2026-11-17 "
                        "10-00-00.MS.\r\n" +
                        Offer,
                    ""},
        DamagedCase{"GradeOverAHundredWithoutBackups",
                    HeaderFile(170),
                    {},
                    MessageAnswer::Ok,
                    Damaged + "No good backup of it was found in the Backups folder. The "
                              "program will use what it can read.",
                    ""}),
    [](const testing::TestParamInfo<DamagedCase>& info) { return info.param.name; });

TEST_F(StartUpTest, AJournalLeftByACrashIsReplayedAndSaidSo) {
    writeEarlierRun("Pat Doe");
    SessionState running;
    running.CurrentTopic = 2;
    running.TestType = 1;
    running.TestItemCount = 2;
    running.TestItems = {0, 3, 4};
    running.TestPosition = 2;
    ASSERT_TRUE(JournalReviewTest(running, doubles.clock.now()));

    EXPECT_EQ(start(), StartUpOutcome::Ready);
    ASSERT_EQ(doubles.dialogs.messages().size(), 1u);
    const ShownMessage& told = doubles.dialogs.messages().front();
    EXPECT_EQ(told.title, QStringLiteral("Test Recovered!"));
    EXPECT_EQ(told.text, QStringLiteral("The program stopped during a review test and did not "
                                        "save it.\r\nYour answers up to the last one were kept. "
                                        "Resume the test from the Navigation Screen."));
    EXPECT_EQ(state.TestPosition, 2);
    EXPECT_EQ(ReadProgressHeader().SuspendedTestRecord, 2);
    EXPECT_FALSE(folder.exists(JournalFile));
}

} // namespace
